#include "richtext/bitmaps/DibHeader.h"

#include <algorithm>
#include <limits>

#include "richtext/bitmaps/Bitmap.h"
#include "richtext/bitmaps/LittleEndian.h"

namespace richtext {
namespace {

constexpr std::size_t CoreHeaderSize = 12;
constexpr std::size_t InfoHeaderSize = 40;
constexpr std::size_t HeaderSizeWithMasks = 52;
constexpr std::size_t HeaderSizeWithAlpha = 56;
constexpr std::size_t MasksAt = 40;

enum Compression : std::uint32_t { Rgb = 0, Rle8 = 1, Rle4 = 2, Bitfields = 3, AlphaBitfields = 6 };

bool IsDepth(int depth) {
  constexpr int Depths[] = {1, 4, 8, 16, 24, 32};
  return std::find(std::begin(Depths), std::end(Depths), depth) != std::end(Depths);
}

// Negative heights tell of rows from the top. The smallest number has no opposite.
bool SetSize(DibHeader& header, std::int32_t width, std::int32_t height) {
  if (width <= 0 || height == 0 || height == std::numeric_limits<std::int32_t>::min()) return false;
  header.width = width;
  header.height = height < 0 ? -height : height;
  header.topDown = height < 0;
  return true;
}

// Whether the packing fits the depth; the sets of masks are in the packing's place.
bool SetPacking(DibHeader& header, std::uint32_t compression) {
  switch (compression) {
    case Rgb:
      return true;
    case Rle8:
      header.packing = DibPacking::Runs8;
      return header.depth == 8 && !header.topDown;
    case Rle4:
      header.packing = DibPacking::Runs4;
      return header.depth == 4 && !header.topDown;
    case Bitfields:
    case AlphaBitfields:
      return header.depth == 16 || header.depth == 32;
    default:
      return false;  // a file of another format in a bitmap's clothes
  }
}

std::size_t MasksBehindHeader(std::size_t headerSize, std::uint32_t compression) {
  if (headerSize >= HeaderSizeWithMasks) return 0;
  if (compression == Bitfields) return 3;
  return compression == AlphaBitfields ? 4 : 0;
}

void SetMasks(DibHeader& header, std::string_view info, std::size_t headerSize, std::uint32_t compression) {
  if (compression == Rgb && header.depth == 16) header.masks = {0x7C00, 0x03E0, 0x001F, 0};
  if (compression == Rgb && header.depth == 32) header.masks = {0xFF0000, 0x00FF00, 0x0000FF, 0};
  if (compression != Rgb) {
    const bool hasAlpha = headerSize >= HeaderSizeWithAlpha || compression == AlphaBitfields;
    for (std::size_t i = 0; i < (hasAlpha ? 4 : 3); ++i)
      header.masks[i] = UnsignedAt32(info, MasksAt + i * 4);
  } else if (headerSize >= HeaderSizeWithAlpha && header.depth == 32) {
    header.masks[3] = UnsignedAt32(info, MasksAt + 12);
  }
}

// Reads the palette, and finds the pixels behind it. `told` is the number of colours in the header; a bitmap
// of many bits may carry a palette that nobody needs.
bool SetPalette(DibHeader& header, std::string_view info, std::size_t at, std::uint32_t told,
                std::size_t entrySize) {
  const std::size_t full = header.depth <= 8 ? std::size_t{1} << header.depth : 0;
  const std::size_t count = told == 0 ? full : told;
  if (count > BytesFrom(info, at).size() / entrySize) return false;
  header.bitsAt = at + count * entrySize;
  for (std::size_t i = 0; i < std::min(count, full); ++i)
    header.palette.push_back(Opaque | (UnsignedAt32(info, at + i * entrySize) & 0xFFFFFF));
  header.palette.resize(full, Opaque);
  return true;
}

std::optional<DibHeader> ReadCoreHeader(std::string_view info) {
  DibHeader header;
  header.depth = static_cast<int>(UnsignedAt16(info, 10));
  const auto width = static_cast<std::int32_t>(UnsignedAt16(info, 4));
  const auto height = static_cast<std::int32_t>(UnsignedAt16(info, 6));
  if (!IsDepth(header.depth) || !SetSize(header, width, height)) return std::nullopt;
  SetMasks(header, info, CoreHeaderSize, Rgb);
  if (!SetPalette(header, info, CoreHeaderSize, 0, 3)) return std::nullopt;
  return header;
}

std::optional<DibHeader> ReadInfoHeader(std::string_view info, std::size_t headerSize) {
  DibHeader header;
  const std::uint32_t compression = UnsignedAt32(info, 16);
  header.depth = static_cast<int>(UnsignedAt16(info, 14));
  if (!IsDepth(header.depth) || !SetSize(header, SignedAt32(info, 4), SignedAt32(info, 8)) ||
      !SetPacking(header, compression))
    return std::nullopt;
  SetMasks(header, info, headerSize, compression);
  const std::size_t paletteAt = headerSize + 4 * MasksBehindHeader(headerSize, compression);
  if (!SetPalette(header, info, paletteAt, UnsignedAt32(info, 32), 4)) return std::nullopt;
  return header;
}

}  // namespace

std::optional<DibHeader> ReadDibHeader(std::string_view info) {
  const std::size_t size = UnsignedAt32(info, 0);
  if (size > info.size()) return std::nullopt;
  if (size == CoreHeaderSize) return ReadCoreHeader(info);
  return size >= InfoHeaderSize ? ReadInfoHeader(info, size) : std::nullopt;
}

}  // namespace richtext
