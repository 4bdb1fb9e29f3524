// HTML from the clipboard as a page.
#pragma once

#include <QtCore/QString>
#include <QtGui/QImage>

#include "richtext/document/Document.h"

namespace richtext {

// Text that names no font, size or colour takes those of `caret`. Backgrounds of a web page and of its parts
// stay behind with the colours of letters that only show on them; highlights come along. Cells of a table are
// kept apart by tabs. Pictures come from within the markup; `carried`, where it is no null image, stands in
// for the first that is not there, and the others leave their descriptions. Nothing is fetched.
Document ReadHtml(const QString& html, const CharacterFormat& caret, const QImage& carried);

}  // namespace richtext
