// Writes a document as RTF 1.5: 7-bit, \ansicpg1252 with \uc1, characters beyond as \uN?.
#pragma once

#include <string>

#include "richtext/Document.h"

namespace richtext {

// ReadRtf(WriteRtf(d)) is d again, and its RTF is the same bytes again. Never empty.
std::string WriteRtf(const Document& document);

}  // namespace richtext
