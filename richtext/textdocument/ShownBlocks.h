// The paragraphs that can be seen, for who draws beside them.
#pragma once

#include <QtCore/QRectF>
#include <QtGui/QTextBlock>

namespace richtext {

// The first paragraph that is not above `shown`, or of the row that it stands in.
QTextBlock FirstShown(const QTextDocument& document, const QRectF& shown);
// Whether it and what follows is below; of a row it cannot be told.
bool IsBelow(const QTextBlock& block, const QRectF& shown);

}  // namespace richtext
