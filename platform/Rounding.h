// The rounding of the program's geometry.
#pragma once

namespace platform {

// The nearest whole number, halves to the even neighbour, whatever rounding mode is in force.
long RoundHalfEven(double value);

}  // namespace platform
