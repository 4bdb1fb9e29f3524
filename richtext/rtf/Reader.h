// Reads RTF (Rich Text Format, versions 1.0 to 1.9.1). Every input is a document: what was read is kept, and
// nothing refuses, hangs or recurses.
#pragma once

#include <string_view>

#include "richtext/document/Document.h"

namespace richtext {

// Whether the text begins with "{\rtf" or "{\urtf". The classic edit controls ask for no more, and pass over
// nothing before it.
bool IsRtf(std::string_view text);

// Text that is no RTF is taken as plain text in Windows-1252. The very last
// \par of the document is swallowed. Table cells end in a tab and rows are paragraphs; headers, footnotes and
// comments are left out.
Document ReadRtf(std::string_view rtf);

}  // namespace richtext
