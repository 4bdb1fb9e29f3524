// Writes a picture as RTF.
#pragma once

#include <string>

#include "richtext/document/Document.h"

namespace richtext::rtf {

// The picture's whole group, of which reading makes an equal picture. False, and nothing written, when the
// picture has no bytes.
bool AppendPicture(const Picture& picture, std::string& rtf);

}  // namespace richtext::rtf
