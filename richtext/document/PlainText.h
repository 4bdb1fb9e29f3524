// A page without its formats.
#pragma once

#include <string>

#include "richtext/document/Document.h"

namespace richtext {

// UTF-8, with a line feed between paragraphs and for a line break, and a tab at the end of a cell. Hidden
// text is left out, and so are pictures and the labels of lists.
std::string PlainText(const Document& document);

}  // namespace richtext
