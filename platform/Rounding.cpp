#include "platform/Rounding.h"

#include <algorithm>
#include <cmath>

namespace platform {

long RoundHalfEven(double value) {
  constexpr double largest = 9e18;
  const double magnitude = std::isnan(value) ? 0 : std::min(std::abs(value), largest);
  const double whole = std::floor(magnitude);
  const double rest = magnitude - whole;  // always exact, so no rounding mode can touch it
  const bool up = rest > 0.5 || (rest == 0.5 && std::fmod(whole, 2) != 0);
  const long rounded = static_cast<long>(whole) + (up ? 1 : 0);
  return value < 0 ? -rounded : rounded;
}

}  // namespace platform
