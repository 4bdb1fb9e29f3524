// What the control words of tables do, in the manner of Handlers.h.
#pragma once

#include "richtext/rtf/Handlers.h"

namespace richtext::rtf::handlers {

inline void InTable(Context& context, Number, Number on) {
  context.ChangeParagraph().inTable = on != 0;
}

inline void BeginRow(Context& context, Number, Number) {
  context.Rows().Begin();
}

inline void NestedRow(Context& context, Number, Number) {
  context.Rows().BeginNested();
}

template <Number RowFormat::*Measure>
inline void RowMeasure(Context& context, Number, Number twips) {
  context.Rows().Row().*Measure = twips;
}

// Programs that know nothing of \trgaph tell it of the row or of each cell.
inline void Padding(Context& context, Number, Number twips) {
  Number& gap = context.Rows().Row().gap;
  if (gap == 0) gap = twips;
}

inline void RowPlace(Context& context, Number place, Number) {
  context.Rows().Row().place = static_cast<PlaceOfTable>(place);
}

inline void HeadRow(Context& context, Number, Number) {
  context.Rows().Row().isHead = true;
}

inline void CellRight(Context& context, Number, Number twips) {
  context.Rows().EndCell(twips);
}

template <Merging CellFormat::*Direction>
inline void Merge(Context& context, Number merging, Number) {
  context.Rows().Cell().*Direction = static_cast<Merging>(merging);
}

inline void CellPlace(Context& context, Number place, Number) {
  context.Rows().Cell().place = static_cast<PlaceInCell>(place);
}

template <Number Shading::*Color>
inline void CellGround(Context& context, Number, Number index) {
  context.Rows().Ground().*Color = GroundColor(context, index);
}

inline void CellPattern(Context& context, Number, Number share) {
  context.Rows().Ground().share = share;
}

inline void RowBorder(Context& context, Number side, Number) {
  context.Rows().BeginBorder(RowWords::Owner::Row, static_cast<std::uint8_t>(side));
}
inline void CellBorder(Context& context, Number side, Number) {
  context.Rows().BeginBorder(RowWords::Owner::Cell, static_cast<std::uint8_t>(side));
}
inline void BorderOfParagraph(Context& context, Number side, Number) {
  context.Rows().BeginBorder(RowWords::Owner::Paragraph, static_cast<std::uint8_t>(side));
}
// A border of a sheet or a letter, or one between paragraphs, which a page does not keep.
inline void OtherBorder(Context& context, Number, Number) {
  context.Rows().BeginBorder(RowWords::Owner::Nothing, 0);
}

template <class Change>
void ChangeParagraphBorder(Context& context, const Change& change) {
  RowWords& words = context.Rows();
  if (!words.IsOfParagraph()) return;
  BorderSets& sets = context.Paragraphs().Borders();
  std::uint32_t& set = context.ChangeParagraph().borders;
  ParagraphBorders borders = sets.At(set);
  for (const Side side : {TopSide, LeftSide, BottomSide, RightSide})
    if (words.SideInHand() == side || words.SideInHand() == RowWords::EverySide) change(borders[side]);
  set = sets.NumberOf(borders, set);
}

template <class Change>
void ChangeBorder(Context& context, const Change& change) {
  if (Border* border = context.Rows().BorderInHand()) return change(*border);
  ChangeParagraphBorder(context, [&](ParagraphBorder& border) { change(border.line); });
}

inline void KindOfBorder(Context& context, Number kind, Number) {
  ChangeBorder(context, [&](Border& border) { border.kind = static_cast<BorderKind>(kind); });
}

inline void WidthOfBorder(Context& context, Number, Number twips) {
  ChangeBorder(context, [&](Border& border) { border.width = twips; });
}

inline void ColorOfBorder(Context& context, Number, Number index) {
  const std::int32_t color = context.Colors().Find(index);
  ChangeBorder(context, [&](Border& border) {
    border.color.reset();
    if (color != AutomaticColor) border.color = static_cast<std::uint32_t>(color);
  });
}

inline void SpaceOfBorder(Context& context, Number, Number twips) {
  ChangeParagraphBorder(context, [&](ParagraphBorder& border) { border.space = twips; });
}

inline void NestedCellEnd(Context& context, Number, Number) {
  context.EndNestedCell();
}

inline void NestedRowEnd(Context& context, Number, Number) {
  context.Rows().EndNested();
  context.EndParagraph();
}

}  // namespace richtext::rtf::handlers
