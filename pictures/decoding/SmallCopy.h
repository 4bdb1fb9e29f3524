// The small copy of itself that a photograph carries.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "pictures/decoding/PictureFile.h"

namespace pictures {

// The JPEG file that an Exif segment (Exif 2.32, CIPA DC-008; a TIFF 6.0 file whose second directory tells of
// it) holds within `file`, the begin of a JPEG file; empty where there is none, or not whole.
std::string_view SmallCopyWithin(std::string_view file);

// That copy of a photograph: upright, in the shape that the photograph has (cameras fill up with black), and
// some 160 pixels wide. None where it has no copy that can be read. Reads no more than the begin of the file.
std::optional<DecodedPicture> LoadSmallCopy(const std::string& path);

}  // namespace pictures
