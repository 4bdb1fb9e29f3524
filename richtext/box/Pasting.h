// What other programs offer on the clipboard or by dragging, and what a selection offers to them.
#pragma once

#include <optional>

#include <QtCore/QMimeData>
#include <QtGui/QImage>

#include "richtext/document/Document.h"

class QTextCursor;

namespace richtext {

bool CanBePasted(const QMimeData& offered);

struct PageOnOffer {
  Document page;
  QImage bitmap = {};  // a large one that the page shows, where it has a stand-in (textdocument/Pictures.h)
};

// The offer as a page, from RTF, else from HTML: nothing but what the writer of pages keeps, so that it comes
// back when the page is stored. What names no format is `caret`'s. Nothing where neither says anything.
// Nothing that the offer names is fetched.
std::optional<PageOnOffer> OfferedPage(const QMimeData& offered, const CharacterFormat& caret);

// The file of a picture, PNG or JPEG, as it came; the first one that is offered.
std::optional<Picture> OfferedFile(const QMimeData& offered);

// A null image where there is none.
QImage OfferedBitmap(const QMimeData& offered);

// The offer as plain text, without what a page cannot keep. Markup and addresses become their text.
QString OfferedText(const QMimeData& offered);

// The selection as it is now, as RTF, as HTML and as plain text, each made when it is asked for. The caller
// owns it.
QMimeData* Offer(const QTextCursor& selection);
// Whether that is such a selection with so many pictures that its RTF takes more than some hundredths of a
// second.
bool IsLongToMake(const QMimeData& offered);

}  // namespace richtext
