// What the text box shows as plain text, which is what a page's plain text is when it is written and read
// again (richtext/document/PlainText.h), but for pictures: these are U+FFFC here.
#pragma once

#include <QtCore/QString>

class QTextDocument;

namespace richtext {

// '\n' between paragraphs and for line breaks, '\t' at the end of a cell; no hidden text. At most twice as
// long as the document.
QString ShownText(const QTextDocument& document);
// Places in that text and in the document. A place beside hidden text is the one behind it; one beyond the
// text is its end.
int ToShown(const QTextDocument& document, int position);
int FromShown(const QTextDocument& document, int position);

}  // namespace richtext
