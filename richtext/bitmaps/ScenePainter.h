// Paints the bitmaps of a metafile onto one.
#pragma once

#include <optional>

#include "richtext/bitmaps/Bitmap.h"
#include "richtext/bitmaps/MetafileBlits.h"

namespace richtext {

// The window of the scene, or what its bitmaps cover where it shows no window around them, as finely as its
// finest bitmap. Nothing when no bitmap can be painted.
std::optional<Bitmap> PaintScene(const Scene& scene);

}  // namespace richtext
