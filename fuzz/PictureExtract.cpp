// The first byte chooses the picture's kind, the others are its bytes.
#include <algorithm>
#include <cstdint>
#include <string>

#include "fuzz/Require.h"
#include "richtext/BitmapFromPicture.h"

namespace {

constexpr std::size_t PixelsOfByte = 256;  // a run of one colour
constexpr std::size_t PaperOfPixel = 16;   // what a metafile shows around its bitmap

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace richtext;
  if (size == 0) return 0;
  Picture picture;
  picture.kind = static_cast<PictureKind>(data[0] % 6);
  picture.bytes.assign(reinterpret_cast<const char*>(data) + 1, size - 1);
  const std::optional<Bitmap> bitmap = BitmapFromPicture(picture);
  if (!bitmap) return 0;
  Require(bitmap->width > 0 && bitmap->height > 0, "a bitmap has two sides");
  const auto pixels = static_cast<std::uint64_t>(bitmap->width) * static_cast<std::uint64_t>(bitmap->height);
  Require(bitmap->argb.size() == pixels && pixels <= MaxPixels, "a bitmap has its pixels");
  Require(pixels <= size * PixelsOfByte * PaperOfPixel, "pixels come from bytes");
  return 0;
}
