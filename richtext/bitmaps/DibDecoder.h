// Decodes device-independent bitmaps, the pictures of the Windows clipboard.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "richtext/bitmaps/Bitmap.h"

namespace richtext {

// Nothing when the bitmap has more than `maxPixels`, or more than its bytes can tell; none of its size is
// taken on trust. What packed rows leave out is transparent, and so is nothing else but by a mask for alpha.
std::optional<Bitmap> DecodeDib(std::string_view dib, std::uint64_t maxPixels = MaxPixels);
// The same with the pixels in a place of their own.
std::optional<Bitmap> DecodeDib(std::string_view info, std::string_view bits,
                                std::uint64_t maxPixels = MaxPixels);

}  // namespace richtext
