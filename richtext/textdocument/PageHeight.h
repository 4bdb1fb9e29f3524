// How much of a page the text box can show. The toolkit's layout never comes back from a page that is more
// than 8,388,607 pixels high.
#pragma once

#include <cstddef>

#include "richtext/document/Document.h"

namespace richtext {

// The number of paragraphs from the start that can be shown, by an estimate that keeps well below that
// height: about 240,000 lines, or 6 MB of text. Takes time by the page's runs.
std::size_t ParagraphsToShow(const Document& page);

// The height in pixels, 96 to the inch, that the page hardly ever exceeds, however narrow it is laid out.
// Takes time by the page's runs.
double EstimatedHeight(const Document& page);

}  // namespace richtext
