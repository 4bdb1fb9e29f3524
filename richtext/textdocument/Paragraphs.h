// The paragraph formats of a page as the text box holds them.
#pragma once

#include <QtGui/QTextBlockFormat>

#include "richtext/document/Document.h"

namespace richtext {

// Measures beyond the format's own range are held at its ends. An item of a list is shown with room for its
// label, which Labels.h draws.
QTextBlockFormat ToBlockFormat(const ParagraphFormat& format);
ParagraphFormat FromBlockFormat(const QTextBlockFormat& format);

ListFormat ListOf(const QTextBlockFormat& format);
bool IsListItem(const QTextBlockFormat& format);
// The same paragraph as no item of a list; its text stays where it was.
QTextBlockFormat WithoutList(const QTextBlockFormat& format);

}  // namespace richtext
