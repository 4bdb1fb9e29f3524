// The run-length packing of device-independent bitmaps of 8 and 4 bits.
#pragma once

#include <string_view>

#include "richtext/bitmaps/Bitmap.h"
#include "richtext/bitmaps/DibHeader.h"

namespace richtext {

// Paints the packed rows into `bitmap`, which has the header's size. What they leave out stays as it is; they
// end with their own mark, with the bytes, or above the picture's top.
void DecodeDibRuns(const DibHeader& header, std::string_view bits, Bitmap& bitmap);

}  // namespace richtext
