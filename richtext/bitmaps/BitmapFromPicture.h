// Decodes the pictures that a toolkit's own decoders do not know: bitmaps without a file around them, and
// metafiles that paint bitmaps, which is how the classic edit controls keep a pasted picture.
#pragma once

#include <optional>

#include "richtext/bitmaps/Bitmap.h"
#include "richtext/document/Document.h"

namespace richtext {

// The whole picture, so that it fills the picture's size. Where a metafile paints beside its bitmaps, that is
// transparent; lines and letters in it are left out. Nothing for PNG and JPEG, for what is damaged, and for
// metafiles without a bitmap. Takes time and memory by the picture's bytes, and never more than MaxPixels ask
// for.
std::optional<Bitmap> BitmapFromPicture(const Picture& picture);

}  // namespace richtext
