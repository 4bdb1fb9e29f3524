// HTML from the clipboard as a page.
//
// The room stands between other programs' markup and a page's value, by way of the toolkit's own reader of
// HTML and the text document that it makes (Writer.h goes the other way, by hand). The markup is first
// brought into a shape that this reader understands alike and cannot be made to hang by: tags written anew
// (Markup.h), tables within bounds (Tables.h), the starts of lists told where they are not lost (Lists.h).
// The hard part is to tell what a writer meant by its looks from what a web page looks like (Formats.h,
// Colors.h).
#pragma once

#include <functional>

#include <QtCore/QString>

#include "richtext/document/Document.h"

namespace richtext {

// Text that names no font, size or colour takes those of `caret`. Backgrounds of a web page and of its parts
// stay behind with the colours of letters that only show on them; highlights come along. Tables come as such,
// but for those of one cell alone, of more columns than a row has room for, and within a cell, where tabs
// keep the cells apart. Pictures come from within the markup; what `carried` gives, where it is a function
// and that has bytes, stands in for the first that is not there, and the others leave their descriptions.
// Nothing is fetched.
Document ReadHtml(const QString& html, const CharacterFormat& caret, const std::function<Picture()>& carried);

}  // namespace richtext
