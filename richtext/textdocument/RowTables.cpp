#include "richtext/textdocument/RowTables.h"

#include <algorithm>

#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include "richtext/document/Twips.h"
#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/PackedRow.h"

namespace richtext {
namespace {

constexpr double ScrollBar = 20;  // pixels
constexpr double NearlyAsWide = 0.95;
constexpr double AllOfIt = 99.5;                         // percent; what is rounded up stays within
constexpr double NarrowestCell = 2 * PaddingOfCell + 1;  // pixels

// In pixels, from left to right. Of cells that are merged the first one is as wide as all of them.
std::vector<double> WidthsOf(const RowFormat& row) {
  std::vector<double> widths;
  std::int32_t left = row.left;
  std::size_t first = 0;
  for (const CellFormat& cell : row.cells) {
    const double width = std::max((cell.right - left) / TwipsPerPixel, NarrowestCell);
    left = std::max(left, cell.right);
    const bool goesOn = cell.across == Merging::Continued && !widths.empty();
    if (goesOn) widths[first] += width - NarrowestCell;
    if (!goesOn) first = widths.size();
    widths.push_back(goesOn ? NarrowestCell : width);
  }
  return widths;
}

Qt::Alignment AlignmentOf(PlaceOfTable place) {
  if (place == PlaceOfTable::Right) return Qt::AlignRight;
  return place == PlaceOfTable::Center ? Qt::AlignHCenter : Qt::AlignLeft;
}

// No more than a row tells, so that its words have the lines that they had elsewhere.
double PaddingOf(const RowFormat& row) {
  return row.gap > 0 ? std::clamp(row.gap / TwipsPerPixel, 1.0, PaddingOfCell) : PaddingOfCell;
}

QTextTableFormat TableFormat(const RowFormat& row, double page) {
  QTextTableFormat format;
  format.setProperty(RowOfTable, Packed(row));
  format.setBorder(0);
  format.setCellSpacing(0);
  format.setCellPadding(PaddingOf(row));
  format.setAlignment(AlignmentOf(row.place));
  const std::vector<double> widths = WidthsOf(row);
  double total = 0;
  for (const double width : widths) total += width;
  const bool isWide = total > NearlyAsWide * page;
  if (!isWide && row.left > 0)
    format.setLeftMargin(std::min(row.left / TwipsPerPixel, std::max(0.0, page - total)));
  QList<QTextLength> columns;
  for (const double width : widths)
    columns.append(isWide ? QTextLength(QTextLength::PercentageLength, AllOfIt * width / total)
                          : QTextLength(QTextLength::FixedLength, width));
  format.setColumnWidthConstraints(columns);
  if (isWide) format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
  return format;
}

void AddRow(const QTextTable& like, QTextCursor& cursor) {
  cursor.beginEditBlock();
  cursor.setPosition(like.lastPosition() + 1);
  const QTextTable& made = *InsertRow(cursor, RowOf(like), PageWidth(*like.document()));
  for (int cell = 0; cell < like.columns(); ++cell) {
    const QTextBlock last = like.document()->findBlock(EndOfCell(like, cell));
    QTextCursor first = made.cellAt(0, cell).firstCursorPosition();
    first.setBlockFormat(last.blockFormat());
    first.setBlockCharFormat(last.charFormat());
  }
  cursor.endEditBlock();
}

}  // namespace

void GoToNextCell(const QTextTable& table, QTextCursor& cursor) {
  const int cell = CellAt(table, cursor.position()) + 1;
  const QTextBlock behind = table.document()->findBlock(table.lastPosition() + 1);
  if (cell < table.columns())
    cursor.setPosition(BeginOfCell(table, cell));
  else if (const QTextTable* const next = RowBehind(table))
    cursor.setPosition(next->firstPosition());
  else if (IsGap(behind) && behind.next().blockFormat().hasProperty(RowOfTable))
    cursor.setPosition(behind.next().position());
  else
    AddRow(table, cursor);
}

QTextTable* InsertRow(QTextCursor& cursor, const RowFormat& row, double page) {
  return cursor.insertTable(1, static_cast<int>(row.cells.size()), TableFormat(row, page));
}

RowFormat RowOf(const QTextTable& table) {
  return Unpacked(table.format().property(RowOfTable).toByteArray());
}

QTextTable* TableAt(const QTextDocument& document, int position) {
  return HasTables(document) ? qobject_cast<QTextTable*>(document.frameAt(position)) : nullptr;
}

QTextTable* RowBehind(const QTextTable& table) {
  const int behind = table.lastPosition() + 1;
  const QTextDocument& document = *table.document();
  return document.characterAt(behind) == QChar(CellSign) ? TableAt(document, behind + 1) : nullptr;
}

QTextTable* RowBefore(const QTextTable& table) {
  const int before = table.firstPosition() - 2;
  const QTextDocument& document = *table.document();
  return document.characterAt(before) == QChar(RowEndSign) ? TableAt(document, before) : nullptr;
}

bool HasTables(const QTextDocument& document) {
  const QTextFrame* const root = document.rootFrame();
  return !root->childFrames().isEmpty();
}

int BeginOfCell(const QTextTable& table, int cell) {
  return table.cellAt(0, cell).firstCursorPosition().position();
}

int EndOfCell(const QTextTable& table, int cell) {
  return table.cellAt(0, cell).lastCursorPosition().position();
}

int CellAt(const QTextTable& table, int position) {
  return table.cellAt(position).column();
}

bool IsGap(const QTextBlock& block) {
  if (!block.isValid() || block.length() > 1) return false;
  const QTextDocument& document = *block.document();
  const auto sign = [&](int position) { return document.characterAt(position).unicode(); };
  if (block.position() > 0 && sign(block.position() - 1) == RowEndSign) return true;
  return block.blockFormat().hasProperty(BeforeRow) && sign(block.position()) == CellSign &&
         !TableAt(document, block.position());
}

QTextBlockFormat GapFormat() {
  QTextBlockFormat format;
  format.setProperty(BeforeRow, true);
  return format;
}

Held HeldBy(const QTextCursor& selection) {
  Held held{selection.selectionStart(), selection.selectionEnd()};
  if (!selection.hasComplexSelection()) return held;
  if (const QTextTable* const table = selection.currentTable()) {
    held.from = BeginOfCell(*table, CellAt(*table, held.from));
    held.to = EndOfCell(*table, CellAt(*table, held.to));
  }
  return held;
}

QTextCharFormat WithPlace(QTextCharFormat mark, PlaceInCell place) {
  if (place != PlaceInCell::Top)
    mark.setVerticalAlignment(place == PlaceInCell::Center ? QTextCharFormat::AlignMiddle
                                                           : QTextCharFormat::AlignBottom);
  return mark;
}

PlaceInCell PlaceOf(const QTextBlock& paragraph) {
  const QTextCharFormat::VerticalAlignment place = paragraph.charFormat().verticalAlignment();
  if (place == QTextCharFormat::AlignMiddle) return PlaceInCell::Center;
  return place == QTextCharFormat::AlignBottom ? PlaceInCell::Bottom : PlaceInCell::Top;
}

QTextCharFormat WithoutCell(QTextCharFormat format) {
  if (format.objectType() == QTextFormat::TableCellObject) format.clearProperty(QTextFormat::ObjectType);
  const QTextCharFormat::VerticalAlignment place = format.verticalAlignment();
  if (place == QTextCharFormat::AlignMiddle || place == QTextCharFormat::AlignBottom)
    format.setVerticalAlignment(QTextCharFormat::AlignNormal);
  return format;
}

double PageWidth(const QTextDocument& document) {
  constexpr double Narrow = 400;
  const double width = document.pageSize().width(), told = document.property(PageWidthProperty).toDouble();
  return width > 0 ? width : told > 0 ? told : Narrow;
}

double RoomOnPage(const QTextDocument& document) {
  return PageWidth(document) - 2 * document.documentMargin() - ScrollBar;
}

double RoomInCell(const QTextTable& table, int position, double page) {
  const QTextTableFormat format = table.format();
  const QList<QTextLength> columns = format.columnWidthConstraints();
  const int cell = CellAt(table, position);
  const double room = cell >= 0 && cell < columns.size() ? columns.at(cell).value(page) : page;
  return std::min(room, page) - 2 * format.cellPadding();
}

}  // namespace richtext
