// The grounds of rows, which the box and the paper have under the text, and their borders, which lie over all
// grounds, those of the paragraphs beside a row too. The toolkit's tables draw
// none: theirs know no sides that differ, and are doubled where rows meet.
#pragma once

#include <vector>

#include <QtCore/QRectF>

class QPainter;
class QTextDocument;
class QTextTable;

namespace richtext {

// A row that is laid out, in the document's own pixels.
struct RowPlace {
  double top, bottom;
  std::vector<double> edges;  // the left ones of its cells, and the right one of the last
};
RowPlace PlaceOf(const QTextTable& row);

// Draws it at a place, which may be another one than it was laid out at. The painter counts in the document's
// pixels, whatever device these fall on.
void DrawGrounds(QPainter& painter, const QTextTable& row, const RowPlace& place);
void DrawBorders(QPainter& painter, const QTextTable& row, const RowPlace& place);

// Draws of the rows that can be seen what is one or the other's affair.
using RowDrawer = void (*)(QPainter&, const QTextTable&, const RowPlace&);
void DrawRows(QPainter& painter, const QTextDocument& document, const QRectF& shown, RowDrawer draw);

}  // namespace richtext
