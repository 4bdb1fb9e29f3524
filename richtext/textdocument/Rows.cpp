#include "richtext/textdocument/Rows.h"

#include <algorithm>

#include <QtCore/QDataStream>
#include <QtCore/QIODevice>
#include <QtCore/QList>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include "richtext/document/Twips.h"
#include "richtext/textdocument/Formats.h"

namespace richtext {
namespace {

constexpr qint32 NoColor = -1;

template <class Value>
void Put(QDataStream& out, Value value) {
  out << static_cast<qint32>(value);
}

void PutColor(QDataStream& out, const std::optional<std::uint32_t>& color) {
  Put(out, color ? static_cast<qint32>(*color) : NoColor);
}

void PutBorder(QDataStream& out, const Border& border) {
  Put(out, border.kind);
  if (border.kind == BorderKind::None) return;
  Put(out, border.width);
  PutColor(out, border.color);
}

template <class Value>
void Get(QDataStream& in, Value& value) {
  qint32 number = 0;
  in >> number;
  value = static_cast<Value>(number);
}

void GetColor(QDataStream& in, std::optional<std::uint32_t>& color) {
  qint32 number = NoColor;
  in >> number;
  if (number != NoColor) color = static_cast<std::uint32_t>(number);
}

void GetBorder(QDataStream& in, Border& border) {
  Get(in, border.kind);
  if (border.kind == BorderKind::None) return;
  Get(in, border.width);
  GetColor(in, border.color);
}

QByteArray Packed(const RowFormat& row) {
  QByteArray bytes;
  QDataStream out(&bytes, QIODevice::WriteOnly);
  Put(out, row.left);
  Put(out, row.gap);
  Put(out, row.height);
  Put(out, row.place);
  Put(out, row.isHead);
  for (const Border& border : row.borders) PutBorder(out, border);
  Put(out, row.cells.size());
  for (const CellFormat& cell : row.cells) {
    Put(out, cell.right);
    Put(out, cell.across);
    Put(out, cell.down);
    Put(out, cell.place);
    PutColor(out, cell.ground);
    for (const Border& border : cell.borders) PutBorder(out, border);
  }
  return bytes;
}

RowFormat Unpacked(const QByteArray& bytes) {
  RowFormat row;
  QDataStream in(bytes);
  Get(in, row.left);
  Get(in, row.gap);
  Get(in, row.height);
  Get(in, row.place);
  Get(in, row.isHead);
  for (Border& border : row.borders) GetBorder(in, border);
  std::size_t cells = 0;
  Get(in, cells);
  row.cells.resize(cells);
  for (CellFormat& cell : row.cells) {
    Get(in, cell.right);
    Get(in, cell.across);
    Get(in, cell.down);
    Get(in, cell.place);
    GetColor(in, cell.ground);
    for (Border& border : cell.borders) GetBorder(in, border);
  }
  return row;
}

}  // namespace

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
  if (position < block.position() + block.length() - 1) return IsCellEndAt(block, position);
  if (!next.isValid() || (!HoldsRow(block) && !HoldsRow(next))) return false;
  if (HoldsRow(block) && MayGoOn(block))
    return IsCellEndAt(block, LastOf(block)) && EndsRow(FormatAt(block, LastOf(block)));
  return HoldsRow(next) || next.length() > 1;
}

bool GoToNextCell(QTextCursor& cursor) {
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
