// The first byte chooses the picture's kind, the others are its bytes.

#include "fuzz/Require.h"
#include "richtext/bitmaps/BitmapFromPicture.h"

namespace {

constexpr std::size_t PixelsOfByte = 256;  // a run of one colour
constexpr std::size_t PaperOfPixel = 16;   // what a metafile shows around its bitmap

}  // namespace

void Try(std::string_view input) {
  using namespace richtext;
  if (input.empty()) return;
  Picture picture;
  picture.kind = static_cast<PictureKind>(static_cast<unsigned char>(input[0]) % 6);
  picture.bytes = input.substr(1);
  const std::optional<Bitmap> bitmap = BitmapFromPicture(picture);
  if (!bitmap) return;
  Require(bitmap->width > 0 && bitmap->height > 0, "a bitmap has two sides");
  const auto pixels = static_cast<std::uint64_t>(bitmap->width) * static_cast<std::uint64_t>(bitmap->height);
  Require(bitmap->argb.size() == pixels && pixels <= MaxPixels, "a bitmap has its pixels");
  Require(pixels <= input.size() * PixelsOfByte * PaperOfPixel, "pixels come from bytes");
}
