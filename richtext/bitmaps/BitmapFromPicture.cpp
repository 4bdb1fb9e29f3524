#include "richtext/bitmaps/BitmapFromPicture.h"

#include <string_view>

#include "richtext/bitmaps/DibDecoder.h"
#include "richtext/bitmaps/MetafileBlits.h"
#include "richtext/bitmaps/ScenePainter.h"

namespace richtext {

namespace {

// Some writers name one kind of metafile and write the other.
std::optional<Bitmap> PaintMetafile(std::string_view metafile) {
  const Scene scene = ReadMetafile(metafile);
  return PaintScene(scene.blits.empty() ? ReadEnhancedMetafile(metafile) : scene);
}

}  // namespace

std::optional<Bitmap> BitmapFromPicture(const Picture& picture) {
  switch (picture.kind) {
    case PictureKind::Dib:
      return DecodeDib(picture.bytes);
    case PictureKind::Metafile:
    case PictureKind::EnhancedMetafile:
      return PaintMetafile(picture.bytes);
    default:
      return std::nullopt;
  }
}

}  // namespace richtext
