// A decoded picture.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace richtext {

struct Bitmap {
  int width = 0;  // pixels; both sides at least 1
  int height = 0;
  std::vector<std::uint32_t> argb;  // 0xAARRGGBB, colours not multiplied by alpha; rows from the top

  std::uint32_t* Row(int y) {
    return argb.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
  }
  const std::uint32_t* Row(int y) const {
    return argb.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
  }
  bool operator==(const Bitmap&) const = default;
};

constexpr std::uint32_t Opaque = 0xFF000000;

// The most pixels that one picture is given, decoding and painting together. Photographs of 64 million pixels
// exist; a header that claims more only wants memory.
constexpr std::uint64_t MaxPixels = 64'000'000;

}  // namespace richtext
