#include "platform/Contrast.h"

#include <algorithm>
#include <cmath>

namespace platform {
namespace {

double Linear(double part) {
  return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color) {
  return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) + 0.0722 * Linear(color.blueF());
}

}  // namespace

double Contrast(const QColor& first, const QColor& second) {
  constexpr double glare = 0.05;  // of the screen, which no colour is without
  const auto [dark, light] = std::minmax({Luminance(first), Luminance(second)});
  return (light + glare) / (dark + glare);
}

}  // namespace platform
