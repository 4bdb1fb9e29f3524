// Decodes the pictures that a toolkit's own decoders do not know: bitmaps without a file around them, and
// metafiles that paint bitmaps, which is how the classic edit controls keep a pasted picture.
//
// Into the room goes a picture of a page as its bytes, out of it come pixels. A device-independent bitmap is
// a header (DibHeader.h) and rows or runs of pixels (DibRuns.h); a metafile (Metafile.cpp,
// EnhancedMetafile.cpp) is read as a list of blits, which one painter lays over each other (ScenePainter.h).
// The hard part is that every number in these bytes may lie: a size is believed only as far as there are
// bytes for it, and no picture costs more than MaxPixels.
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
