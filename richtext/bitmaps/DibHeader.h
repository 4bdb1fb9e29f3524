// What stands before the pixels of a device-independent bitmap: header, masks and palette.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace richtext {

enum class DibPacking : std::uint8_t { Plain, Runs8, Runs4 };

struct DibHeader {
  int width = 0;  // pixels, 1 and up
  int height = 0;
  bool topDown = false;  // rows from the top; else from the bottom
  int depth = 0;         // bits a pixel: 1, 4, 8, 16, 24 or 32
  DibPacking packing = DibPacking::Plain;
  std::array<std::uint32_t, 4> masks{};  // red, green, blue, alpha of 16 and 32 bits
  std::vector<std::uint32_t> palette;    // 0xFFRRGGBB, of 1, 4 and 8 bits
  std::size_t bitsAt = 0;                // where the pixels of a packed bitmap begin

  std::uint64_t Pixels() const {
    return static_cast<std::uint64_t>(width) * static_cast<std::uint64_t>(height);
  }
  // Rows are filled up to four bytes.
  std::uint64_t RowBytes() const {
    return (static_cast<std::uint64_t>(width) * static_cast<std::uint64_t>(depth) + 31) / 32 * 4;
  }
};

// `info` begins with a header of 12 (the oldest) or of 40 and more bytes. Nothing when it is cut off, holds
// no picture, or one packed in a way that is not a bitmap's own.
std::optional<DibHeader> ReadDibHeader(std::string_view info);

}  // namespace richtext
