// What other programs offer on the clipboard or by dragging, and what a selection offers to them.
#pragma once

#include <string>

#include <QtCore/QMimeData>

class QTextCursor;

namespace richtext {

bool CanBePasted(const QMimeData& offered);
// The offer as RTF; empty where there is none.
std::string OfferedRtf(const QMimeData& offered);
// The offer as plain text, without signs that the text box keeps for itself. Markup and addresses become
// their text; nothing that they name is fetched.
QString OfferedText(const QMimeData& offered);
// The offer as a bitmap, where that says more than its text does; otherwise a null image.
QImage OfferedBitmap(const QMimeData& offered);

// The selection as RTF and as plain text. The caller owns it.
QMimeData* Offer(const QTextCursor& selection);

}  // namespace richtext
