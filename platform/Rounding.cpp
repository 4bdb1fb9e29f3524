#include "platform/Rounding.h"

#include <cmath>

namespace platform {

long RoundHalfEven(double value) {
  const double whole = std::floor(value);
  const double rest = value - whole;  // exact: both lie within a factor of two, or the rest is the value
  const bool up = rest > 0.5 || (rest == 0.5 && std::fmod(whole, 2) != 0);
  return static_cast<long>(up ? whole + 1 : whole);
}

}  // namespace platform
