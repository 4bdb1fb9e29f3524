// The rounding of the program's geometry.
#pragma once

namespace platform {

// The nearest whole number, halves to the even neighbour, whatever rounding mode is in force. What no
// long can hold becomes 9e18 of its sign; what is no number becomes 0.
long RoundHalfEven(double value);

}  // namespace platform
