// The columns of a table in markup.
#pragma once

#include <cstdint>
#include <vector>

#include <QtGui/QTextTable>

#include "richtext/document/Document.h"

namespace richtext::html {

// Their right edges, in twips. Those that tell no width are as wide as their words in one line, as long as
// the page has room for that; what they have to share then is parted so that none is cut that needs less.
// Where the table tells its width, they fill it. What the markup leaves open of letters is `caret`'s.
std::vector<std::int32_t> RightEdgesOf(const QTextTable& table, const CharacterFormat& caret);

}  // namespace richtext::html
