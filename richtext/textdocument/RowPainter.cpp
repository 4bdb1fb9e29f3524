#include "richtext/textdocument/RowPainter.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QPainter>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>
#include <QtGui/QTextLayout>

#include "richtext/document/Twips.h"
#include "richtext/textdocument/BorderLine.h"
#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/RowTables.h"

namespace richtext {
namespace {

constexpr double Near = 2;  // pixels between edges that are meant to be one

// The borders of the cells of a row, as the row and its neighbours have them.
class Borders {
 public:
  explicit Borders(const QTextTable& table)
      : row_(RowOf(table)), hasAbove_(RowBefore(table)), below_(RowBehind(table)) {
    if (below_) rowBelow_ = RowOf(*below_);
  }

  const RowFormat& Row() const { return row_; }
  Border Top(std::size_t cell) const {
    return row_.cells[cell].down == Merging::Continued && hasAbove_
               ? Border()
               : Of(cell, TopSide, hasAbove_ ? BetweenRows : TopSide);
  }
  Border Bottom(std::size_t cell) const {
    return GoesOnBelow(cell) ? Border() : Of(cell, BottomSide, below_ ? BetweenRows : BottomSide);
  }
  Border Left(std::size_t cell) const {
    return cell > 0 && row_.cells[cell].across == Merging::Continued
               ? Border()
               : Of(cell, LeftSide, cell > 0 ? BetweenCells : LeftSide);
  }
  Border Right(std::size_t cell) const {
    const bool isLast = cell + 1 == row_.cells.size();
    return !isLast && row_.cells[cell + 1].across == Merging::Continued
               ? Border()
               : Of(cell, RightSide, isLast ? RightSide : BetweenCells);
  }

 private:
  Border Of(std::size_t cell, Side side, Side ofRow) const {
    const Border& own = row_.cells[cell].borders[side];
    return own.kind == BorderKind::None ? row_.borders[ofRow] : own;
  }
  bool GoesOnBelow(std::size_t cell) const {
    const auto isSame = [&](const CellFormat& below) {
      return below.down == Merging::Continued &&
             std::abs(below.right - row_.cells[cell].right) < Near * TwipsPerPixel;
    };
    return std::any_of(rowBelow_.cells.begin(), rowBelow_.cells.end(), isSame);
  }

  const RowFormat row_;
  const bool hasAbove_;
  const QTextTable* const below_;
  RowFormat rowBelow_;
};

// The first row that ends below a height of the document.
int FirstBelow(const QList<QTextFrame*>& rows, const QTextDocument& document, const QPointF& place) {
  const int position = document.documentLayout()->hitTest(place, Qt::FuzzyHit);
  const auto first = std::lower_bound(rows.begin(), rows.end(), position - 1,
                                      [](const QTextFrame* row, int at) { return row->lastPosition() < at; });
  return static_cast<int>(first - rows.begin());
}

}  // namespace

// The toolkit tells where a text begins, and with it the cell, but for the rows of which the first cell's
// text lies lower: the highest text of them all begins at the top.
RowPlace PlaceOf(const QTextTable& row) {
  const QAbstractTextDocumentLayout& layout = *row.document()->documentLayout();
  RowPlace place{std::numeric_limits<double>::max(), 0, {}};
  for (int cell = 0; cell < row.columns(); ++cell) {
    const QTextBlock block = row.document()->findBlock(BeginOfCell(row, cell));
    if (!block.isVisible()) break;
    const QPointF begin = layout.blockBoundingRect(block).topLeft() - block.layout()->position();
    place.top = std::min(place.top, begin.y() - row.format().cellPadding());
    place.edges.push_back(begin.x() - row.format().cellPadding());
  }
  const QRectF frame = layout.frameBoundingRect(const_cast<QTextTable*>(&row));
  if (place.edges.empty()) place = {frame.top(), 0, {frame.left() + row.format().leftMargin()}};
  place.edges.resize(static_cast<std::size_t>(row.columns()), place.edges.back());
  place.bottom = place.top + frame.height();
  place.edges.push_back(place.edges.front() + frame.width() - row.format().leftMargin());
  return place;
}

void DrawGrounds(QPainter& painter, const QTextTable& table, const RowPlace& place) {
  const RowFormat row = RowOf(table);
  for (std::size_t cell = 0; cell < row.cells.size(); ++cell)
    if (row.cells[cell].ground)
      painter.fillRect(
          QRectF(QPointF(place.edges[cell], place.top), QPointF(place.edges[cell + 1], place.bottom)),
          ToColor(*row.cells[cell].ground));
}

void DrawBorders(QPainter& painter, const QTextTable& table, const RowPlace& place) {
  const Borders borders(table);
  const double top = std::round(place.top), bottom = std::round(place.bottom);
  for (std::size_t cell = 0; cell < borders.Row().cells.size(); ++cell) {
    const double left = std::round(place.edges[cell]), right = std::round(place.edges[cell + 1]);
    DrawBorder(painter, borders.Top(cell), {left, top, right, top});
    DrawBorder(painter, borders.Bottom(cell), {left, bottom, right, bottom});
    DrawBorder(painter, borders.Left(cell), {left, top, left, bottom});
    DrawBorder(painter, borders.Right(cell), {right, top, right, bottom});
  }
}

void DrawRows(QPainter& painter, const QTextDocument& document, const QRectF& shown, RowDrawer draw) {
  const QList<QTextFrame*> rows = document.rootFrame()->childFrames();
  if (rows.isEmpty()) return;
  for (int i = FirstBelow(rows, document, shown.topLeft()); i < rows.size(); ++i) {
    const auto* const row = qobject_cast<const QTextTable*>(rows.at(i));
    if (!row || !document.findBlock(row->firstPosition()).isVisible()) return;
    const RowPlace place = PlaceOf(*row);
    draw(painter, *row, place);
    if (place.top > shown.bottom()) return;
  }
}

}  // namespace richtext
