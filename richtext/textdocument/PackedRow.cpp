#include "richtext/textdocument/PackedRow.h"

#include <QtCore/QDataStream>
#include <QtCore/QIODevice>

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

}  // namespace

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

QByteArray Packed(const ParagraphBorders& borders) {
  QByteArray bytes;
  QDataStream out(&bytes, QIODevice::WriteOnly);
  for (const ParagraphBorder& border : borders) {
    PutBorder(out, border.line);
    Put(out, border.space);
  }
  return bytes;
}

ParagraphBorders UnpackedBorders(const QByteArray& bytes) {
  ParagraphBorders borders;
  QDataStream in(bytes);
  for (ParagraphBorder& border : borders) {
    GetBorder(in, border.line);
    Get(in, border.space);
  }
  return borders;
}

}  // namespace richtext
