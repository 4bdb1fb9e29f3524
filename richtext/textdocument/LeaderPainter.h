// What leads the eye from a text to the one behind a tab, as the dots of a table of contents. The toolkit's
// tabs are empty.
#pragma once

#include <QtCore/QRectF>
#include <QtGui/QTextBlock>

class QPainter;
class QTextDocument;
class QTextLine;

namespace richtext {

// Of the tabs of a line, whose layout is drawn at a place. The painter counts in the document's pixels.
void DrawLeaders(QPainter& painter, const QTextBlock& block, const QTextLine& line, const QPointF& place);
// Of the lines that can be seen.
void DrawLeaders(QPainter& painter, const QTextDocument& document, const QRectF& shown);

}  // namespace richtext
