#include "richtext/bitmaps/DibDecoder.h"

#include <algorithm>
#include <bit>

#include "richtext/bitmaps/DibHeader.h"
#include "richtext/bitmaps/DibRuns.h"
#include "richtext/bitmaps/LittleEndian.h"

namespace richtext {
namespace {

// Sixteen million: a run of two bytes makes up to 255 pixels, so there the bytes at hand say little.
constexpr std::uint64_t MaxPixelsOfRuns = 16'000'000;
constexpr std::uint64_t PixelsOfRunByte = 256;

// One colour's bits within a pixel, brought to eight bits.
class Channel {
 public:
  explicit Channel(std::uint32_t mask)
      : mask_(mask), shift_(mask == 0 ? 0 : std::countr_zero(mask)), largest_(mask >> shift_) {}

  std::uint32_t Of(std::uint32_t pixel) const {
    if (largest_ == 0) return 0;
    return static_cast<std::uint32_t>((std::uint64_t{(pixel & mask_) >> shift_} * 255 + largest_ / 2) /
                                      largest_);
  }

 private:
  std::uint32_t mask_;
  int shift_;
  std::uint32_t largest_;
};

void DecodeIndexedRow(const DibHeader& header, std::string_view row, std::uint32_t* to) {
  const auto depth = static_cast<std::uint32_t>(header.depth);
  const std::uint32_t inByte = 8 / depth;
  for (std::uint32_t x = 0; x < static_cast<std::uint32_t>(header.width); ++x) {
    const std::uint32_t shift = 8 - depth * (x % inByte + 1);
    to[x] = header.palette[(ByteAt(row, x / inByte) >> shift) & ((1U << depth) - 1)];
  }
}

void DecodeRow24(const DibHeader& header, std::string_view row, std::uint32_t* to) {
  for (std::size_t x = 0; x < static_cast<std::size_t>(header.width); ++x)
    to[x] = Opaque | UnsignedAt16(row, x * 3) | ByteAt(row, x * 3 + 2) << 16;
}

void DecodeMaskedRow(const DibHeader& header, std::string_view row, std::uint32_t* to) {
  const auto& [redMask, greenMask, blueMask, alphaMask] = header.masks;
  const Channel red(redMask), green(greenMask), blue(blueMask), alpha(alphaMask);
  for (std::size_t x = 0; x < static_cast<std::size_t>(header.width); ++x) {
    const std::uint32_t pixel = header.depth == 16 ? UnsignedAt16(row, x * 2) : UnsignedAt32(row, x * 4);
    const std::uint32_t opacity = alphaMask == 0 ? Opaque : alpha.Of(pixel) << 24;
    to[x] = opacity | red.Of(pixel) << 16 | green.Of(pixel) << 8 | blue.Of(pixel);
  }
}

void DecodeRow(const DibHeader& header, std::string_view row, std::uint32_t* to) {
  if (header.depth <= 8) return DecodeIndexedRow(header, row, to);
  if (header.depth == 24) return DecodeRow24(header, row, to);
  DecodeMaskedRow(header, row, to);
}

// The last row may lack what fills it up to four bytes.
bool Holds(std::string_view bits, const DibHeader& header) {
  const std::uint64_t row = header.RowBytes();
  const std::uint64_t used =
      (static_cast<std::uint64_t>(header.width) * static_cast<std::uint64_t>(header.depth) + 7) / 8;
  return bits.size() >= used && (bits.size() - used) / row >= static_cast<std::uint64_t>(header.height) - 1;
}

bool CanDecode(const DibHeader& header, std::string_view bits, std::uint64_t maxPixels) {
  if (header.Pixels() > maxPixels) return false;
  if (header.packing == DibPacking::Plain) return Holds(bits, header);
  return header.Pixels() <= std::min(MaxPixelsOfRuns, bits.size() * PixelsOfRunByte);
}

// A mask for alpha under which nothing can be seen was not meant.
void ShowIfInvisible(Bitmap& bitmap) {
  const auto isVisible = [](std::uint32_t pixel) { return (pixel & Opaque) != 0; };
  if (std::any_of(bitmap.argb.begin(), bitmap.argb.end(), isVisible)) return;
  for (std::uint32_t& pixel : bitmap.argb) pixel |= Opaque;
}

std::optional<Bitmap> Decode(const DibHeader& header, std::string_view bits, std::uint64_t maxPixels) {
  if (!CanDecode(header, bits, maxPixels)) return std::nullopt;
  Bitmap bitmap{header.width, header.height, std::vector<std::uint32_t>(header.Pixels())};
  if (header.packing != DibPacking::Plain) {
    DecodeDibRuns(header, bits, bitmap);
    return bitmap;
  }
  for (int i = 0; i < header.height; ++i) {
    const std::string_view row = bits.substr(static_cast<std::size_t>(i) * header.RowBytes());
    DecodeRow(header, row, bitmap.Row(header.topDown ? i : header.height - 1 - i));
  }
  if (header.masks[3] != 0) ShowIfInvisible(bitmap);
  return bitmap;
}

}  // namespace

std::optional<Bitmap> DecodeDib(std::string_view dib, std::uint64_t maxPixels) {
  const std::optional<DibHeader> header = ReadDibHeader(dib);
  return header ? Decode(*header, BytesFrom(dib, header->bitsAt), maxPixels) : std::nullopt;
}

std::optional<Bitmap> DecodeDib(std::string_view info, std::string_view bits, std::uint64_t maxPixels) {
  const std::optional<DibHeader> header = ReadDibHeader(info);
  return header ? Decode(*header, bits, maxPixels) : std::nullopt;
}

}  // namespace richtext
