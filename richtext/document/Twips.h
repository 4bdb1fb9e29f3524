// The measure of a page, and what it is on the screen.
#pragma once

#include <cstdint>

namespace richtext {

constexpr std::int32_t TwipsPerInch = 1440;
constexpr std::int32_t PixelsPerInch = 96;
constexpr double TwipsPerPixel = 15;

}  // namespace richtext
