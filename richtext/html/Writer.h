// A page as HTML, for programs that take nothing better from the clipboard.
#pragma once

#include <QtCore/QString>

#include "richtext/document/Document.h"

namespace richtext {

// Looks in a browser as it does in the text box: list labels with their numbers, pictures within the markup.
// Hidden text stays out.
QString WriteHtml(const Document& page);

}  // namespace richtext
