// The ground of a paragraph or of a cell, as its words tell it.
#pragma once

#include <algorithm>
#include <cstdint>

namespace richtext::rtf {

// A pattern of two colours lies on the ground; seen from where one reads, they mix to one.
struct Shading {
  static constexpr std::int32_t Automatic = -1;
  static constexpr std::int32_t White = 0xFFFFFF;
  static constexpr std::int32_t All = 10'000;

  std::int32_t back = Automatic;  // 0x00BBGGRR
  std::int32_t fore = Automatic;  // likewise; of the pattern
  std::int32_t share = 0;         // of the pattern, in ten thousandths

  // Automatic where there is none. White is what some programs write for none; on coloured paper it would
  // stand out.
  constexpr std::int32_t Color() const {
    if (share <= 0) return back == White ? Automatic : back;
    const std::int32_t below = back == Automatic ? White : back;
    const std::int32_t above = fore == Automatic ? 0 : fore;
    const std::int32_t part = std::min(share, All);
    std::int32_t mixed = 0;
    for (const int shift : {0, 8, 16})
      mixed |= ((below >> shift & 0xFF) * (All - part) + (above >> shift & 0xFF) * part) / All << shift;
    return mixed == White ? Automatic : mixed;
  }
};

}  // namespace richtext::rtf
