#include "richtext/textdocument/Rows.h"

#include <algorithm>

#include <QtCore/QList>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include "richtext/document/Twips.h"
#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/PackedRow.h"
#include "richtext/textdocument/RowTables.h"

namespace richtext {

QTextBlockFormat InRow(QTextBlockFormat format, const RowFormat& row, bool isOdd) {
  format.setProperty(RowOfTable, Packed(row));
  format.setProperty(OddRow, isOdd);
  return format;
}

QTextBlockFormat InSameRow(QTextBlockFormat format, const QTextBlockFormat& other) {
  format.setProperty(RowOfTable, other.property(RowOfTable));
  format.setProperty(OddRow, other.property(OddRow));
  return format;
}

// The first cell begins at the left of the paper, however far the row hangs out.
QTextBlockFormat InColumns(QTextBlockFormat format, const RowFormat& row) {
  format.setProperty(ParagraphOfCellEnd, QVariant::fromValue<QTextFormat>(QTextBlockFormat(format)));
  QList<QTextOption::Tab> columns;
  for (const CellFormat& cell : row.cells)
    if (cell.right > row.left)
      columns.append({(cell.right - row.left) / TwipsPerPixel, QTextOption::LeftTab, QChar()});
  format.setAlignment(Qt::AlignLeft);
  format.setTextIndent(0);
  format.setTabPositions(columns);
  format.clearProperty(LeadersOfTabs);
  format.clearProperty(LastTabOfDocument);
  return format;
}

bool IsInRow(const QTextBlockFormat& format) {
  return format.hasProperty(RowOfTable);
}

bool IsOddRow(const QTextBlockFormat& format) {
  return format.boolProperty(OddRow);
}

bool MayGoOn(const QTextBlock& block) {
  if (!block.next().isValid()) return false;
  const QTextBlockFormat format = block.blockFormat(), next = block.next().blockFormat();
  return IsInRow(next) && IsOddRow(format) == IsOddRow(next) &&
         format.property(RowOfTable) == next.property(RowOfTable);
}

RowFormat RowOf(const QTextBlockFormat& format) {
  return Unpacked(format.property(RowOfTable).toByteArray());
}

QTextCharFormat CellEnd(QTextCharFormat mark, const QTextBlockFormat& paragraph, bool endsRow) {
  mark.setProperty(ParagraphOfCellEnd, QVariant::fromValue<QTextFormat>(paragraph));
  if (endsRow) mark.setProperty(EndOfRow, true);
  return mark;
}

bool IsCellEnd(const QTextCharFormat& format) {
  return format.hasProperty(ParagraphOfCellEnd);
}

bool EndsRow(const QTextCharFormat& cellEnd) {
  return cellEnd.boolProperty(EndOfRow);
}

QTextBlockFormat ParagraphOfCell(const QTextFormat& format) {
  return qvariant_cast<QTextFormat>(format.property(ParagraphOfCellEnd)).toBlockFormat();
}

QTextCharFormat WithoutCellEnd(QTextCharFormat format) {
  format.clearProperty(ParagraphOfCellEnd);
  format.clearProperty(EndOfRow);
  return format;
}

namespace {

QTextCharFormat FormatAt(const QTextBlock& block, int position) {
  QTextCursor behind(block);
  behind.setPosition(position + 1);
  return behind.charFormat();
}

bool IsCellEndAt(const QTextBlock& block, int position) {
  const int at = position - block.position();
  return IsInRow(block.blockFormat()) && at >= 0 && at < block.length() - 1 && block.text().at(at) == u'\t' &&
         IsCellEnd(FormatAt(block, position));
}

bool HoldsRow(const QTextBlock& block) {
  return block.length() > 1 && IsInRow(block.blockFormat());
}

int LastOf(const QTextBlock& block) {
  return block.position() + block.length() - 2;
}

void AddRow(QTextCursor& cursor) {
  const QTextBlock last = cursor.block();
  const QTextBlockFormat format = last.blockFormat();
  QTextCharFormat tab = FormatAt(last, LastOf(last));
  const RowFormat row = RowOf(format);
  cursor.beginEditBlock();
  cursor.insertBlock(InRow(format, row, !IsOddRow(format)), last.charFormat());
  const int begin = cursor.position();
  tab.clearProperty(EndOfRow);
  cursor.insertText(QString(static_cast<qsizetype>(row.cells.size()) - 1, u'\t'), tab);
  tab.setProperty(EndOfRow, true);
  cursor.insertText(QString(u'\t'), tab);
  cursor.endEditBlock();
  cursor.setPosition(begin);
}

}  // namespace

bool IsBorder(const QTextDocument& document, int position) {
  const QTextBlock block = document.findBlock(position), next = block.next();
  if (position < 0 || !block.isValid()) return false;
  if (HasTables(document)) {
    const QChar sign = document.characterAt(position);
    if (sign == QChar(CellSign) || sign == QChar(RowEndSign)) return true;
    if (IsGap(block)) return next.length() > 1;
  }
  if (position < block.position() + block.length() - 1) return IsCellEndAt(block, position);
  if (!next.isValid() || (!HoldsRow(block) && !HoldsRow(next))) return false;
  if (HoldsRow(block) && MayGoOn(block))
    return IsCellEndAt(block, LastOf(block)) && EndsRow(FormatAt(block, LastOf(block)));
  return HoldsRow(next) || next.length() > 1;
}

bool GoToNextCell(QTextCursor& cursor) {
  if (const QTextTable* const table = TableAt(*cursor.document(), cursor.position()))
    return GoToNextCell(*table, cursor), true;
  if (!HoldsRow(cursor.block())) return false;
  for (QTextBlock block = cursor.block(); HoldsRow(block); block = block.next())
    for (int at = std::max(cursor.position(), block.position()); at <= LastOf(block); ++at) {
      if (!IsCellEndAt(block, at)) continue;
      const bool isLast = at == LastOf(block) && EndsRow(FormatAt(block, at));
      cursor.setPosition(at + 1);
      if (isLast && HoldsRow(block.next()))
        cursor.setPosition(block.next().position());
      else if (isLast)
        AddRow(cursor);
      return true;
    }
  return true;
}

}  // namespace richtext
