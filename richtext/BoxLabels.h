// The labels of list items as the text box draws them: beside the first line, and no part of the text. The
// toolkit's own lists can start at no other number than 1, know few bullets, and take a time that grows with
// the square of a list's length.
#pragma once

#include <QtGui/QTextBlock>

class QPainter;
class QRectF;

namespace richtext {

// The label of an item; empty where the block is none. An item counts on from an item of the same level and
// format before it; deeper items between the two do not matter, other paragraphs end the list.
QString LabelOf(const QTextBlock& block);

// Draws the labels that can be seen of a document that is laid out. Painter and `shown` count in the
// document's own pixels. Returns whether there was one.
bool DrawLabels(QPainter& painter, const QTextDocument& document, const QRectF& shown);

}  // namespace richtext
