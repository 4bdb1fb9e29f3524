#include "richtext/textdocument/ShownBlocks.h"

#include <algorithm>

#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QTextDocument>

#include "richtext/textdocument/RowTables.h"

namespace richtext {
namespace {

// Asked for a place above the first line, the toolkit looks at all blocks.
QTextBlock FirstBelow(const QPointF& place, const QTextDocument& document) {
  const QAbstractTextDocumentLayout& layout = *document.documentLayout();
  if (place.y() < layout.blockBoundingRect(document.begin()).bottom()) return document.begin();
  return document.findBlock(std::max(0, layout.hitTest(place, Qt::FuzzyHit)));
}

}  // namespace

QTextBlock FirstShown(const QTextDocument& document, const QRectF& shown) {
  const QTextBlock first = FirstBelow(shown.topLeft(), document);
  const QTextTable* const row = TableAt(document, first.position());
  return row ? document.findBlock(row->firstPosition()) : first;
}

bool IsBelow(const QTextBlock& block, const QRectF& shown) {
  const QTextDocument& document = *block.document();
  return document.documentLayout()->blockBoundingRect(block).top() >= shown.bottom() &&
         !TableAt(document, block.position());
}

}  // namespace richtext
