// What the control words do: one handler for each, or for each family of them. A handler's numbers are the
// argument that its word has in the table, and the parameter.
#pragma once

#include <algorithm>
#include <cstdint>

#include "richtext/rtf/Context.h"

namespace richtext::rtf::handlers {

using Number = std::int32_t;

// Characters and paragraph ends.

inline void Character(Context& context, Number character, Number) {
  context.PutCharacter(static_cast<char16_t>(character));
}

inline void CellEnd(Context& context, Number, Number) {
  context.EndCell();
}

inline void RowEnd(Context& context, Number, Number) {
  context.EndRow();
}

inline void ParagraphEnd(Context& context, Number, Number) {
  context.EndParagraph();
}

inline void Unicode(Context& context, Number, Number number) {
  context.PutUnicode(number);
}

inline void TabDistance(Context& context, Number, Number twips) {
  context.SetTabDistance(twips);
}

inline void FallbackLength(Context& context, Number, Number length) {
  context.State().fallbackLength = std::max(length, 0);
}

// The document's code page.

inline void CharacterSet(Context& context, Number page, Number) {
  context.OwnPage().SetCharacterSet(page);
}
inline void AnsiCodePage(Context& context, Number, Number page) {
  context.OwnPage().SetAnsi(page);
}

// The font table, and the choice of a font.

inline void DefaultFont(Context& context, Number, Number number) {
  context.Fonts().SetDefault(number);
  context.ChangeCharacter();
}

inline void Font(Context& context, Number, Number number) {
  if (context.State().destination == Destination::FontTable) {
    context.Fonts().BeginEntry(number, context.Depth());
  } else {
    context.SetFont(number);
  }
}

inline void FontCharset(Context& context, Number, Number charset) {
  if (context.State().destination == Destination::FontTable) context.Fonts().SetCharset(charset);
}

inline void FontCodePage(Context& context, Number, Number page) {
  if (context.State().destination == Destination::FontTable) context.Fonts().SetCodePage(page);
}

// The colour table, and the choice of a colour.

template <void (ColorTable::*Set)(Number)>
inline void Component(Context& context, Number, Number value) {
  if (context.State().destination == Destination::ColorTable) (context.Colors().*Set)(value);
}

inline void Color(Context& context, Number, Number index) {
  context.ChangeCharacter().color = context.Colors().Find(index);
}

// Number 0 is no colour here, whatever the table begins with.
inline void Highlight(Context& context, Number, Number index) {
  context.ChangeCharacter().highlight = index == 0 ? AutomaticColor : context.Colors().Find(index);
}

// Likewise.
inline std::int32_t GroundColor(Context& context, Number index) {
  return index == 0 ? AutomaticColor : context.Colors().Find(index);
}

inline void Background(Context& context, Number, Number index) {
  context.ChangeCharacter().background = Shading{GroundColor(context, index)}.Color();
}

template <Number Shading::*Color>
inline void ParagraphGround(Context& context, Number, Number index) {
  context.ChangeParagraph().ground.*Color = GroundColor(context, index);
}

inline void ParagraphPattern(Context& context, Number, Number share) {
  context.ChangeParagraph().ground.share = share;
}

// Characters' looks.

inline void Plain(Context& context, Number, Number) {
  context.ResetCharacter();
}

inline void FontSize(Context& context, Number, Number halfPoints) {
  if (halfPoints > 0) context.ChangeCharacter().halfPoints = std::min(halfPoints, MaxHalfPoints);
}

template <bool CharacterState::*Flag>
inline void Toggle(Context& context, Number, Number on) {
  context.ChangeCharacter().*Flag = on != 0;
}

inline void Underline(Context& context, Number kind, Number on) {
  context.ChangeCharacter().underline = on != 0 ? static_cast<UnderlineKind>(kind) : UnderlineKind::None;
}

// What one word turned on, another does not turn off.
inline void Capital(Context& context, Number kind, Number on) {
  Capitals& capitals = context.ChangeCharacter().capitals;
  if (on != 0)
    capitals = static_cast<Capitals>(kind);
  else if (capitals == static_cast<Capitals>(kind))
    capitals = Capitals::AsWritten;
}

inline void Place(Context& context, Number place, Number on) {
  context.ChangeCharacter().place = on != 0 ? static_cast<VerticalPlace>(place) : VerticalPlace::Baseline;
}

// Half points up, or times -1 down.
inline void Shift(Context& context, Number sign, Number halfPoints) {
  const bool up = (halfPoints > 0) == (sign > 0);
  const VerticalPlace shifted = up ? VerticalPlace::Superscript : VerticalPlace::Subscript;
  context.ChangeCharacter().place = halfPoints == 0 ? VerticalPlace::Baseline : shifted;
}

// Paragraphs' looks.

inline void ParagraphDefault(Context& context, Number, Number) {
  context.ChangeParagraph() = ParagraphState();
}

inline void StyleOfParagraph(Context& context, Number, Number number) {
  context.SetStyle(number);
}

inline void Align(Context& context, Number alignment, Number) {
  context.ChangeParagraph().alignment = static_cast<Alignment>(alignment);
}

inline void Flow(Context& context, Number direction, Number) {
  context.ChangeParagraph().direction = static_cast<Direction>(direction);
}

template <Number ParagraphState::*Measure>
inline void Indent(Context& context, Number, Number twips) {
  context.ChangeParagraph().*Measure = FittingIndent(twips);
}

// Tells more than the older word beside it, unless that comes behind it.
template <Number ParagraphState::*Side, Number ParagraphState::*Newer>
inline void SideIndent(Context& context, Number, Number twips) {
  context.ChangeParagraph().*Side = FittingIndent(twips);
  context.State().paragraph.*Newer = ParagraphState::NotTold;
}

template <Number ParagraphState::*Measure>
inline void Space(Context& context, Number, Number twips) {
  context.ChangeParagraph().*Measure = FittingSpace(twips);
}

template <bool ParagraphState::*Flag>
inline void AutoSpace(Context& context, Number, Number on) {
  context.ChangeParagraph().*Flag = on != 0;
}

inline void MultipleSpacing(Context& context, Number, Number on) {
  context.ChangeParagraph().multipleSpacing = on != 0;
}

inline void NextTab(Context& context, Number kind, Number) {
  context.ChangeParagraph().nextTab = static_cast<TabKind>(kind);
}

inline void NextLeader(Context& context, Number leader, Number) {
  context.ChangeParagraph().nextLeader = static_cast<TabLeader>(leader);
}

inline void Tab(Context& context, Number, Number position) {
  ParagraphState& paragraph = context.ChangeParagraph();
  const TabStop stop{position, paragraph.nextTab, paragraph.nextLeader};
  paragraph.tabs = context.Paragraphs().Tabs().Add(paragraph.tabs, stop);
  paragraph.nextTab = TabKind::Left;
  paragraph.nextLeader = TabLeader::None;
}

// Fields.

inline void Field(Context& context, Number, Number) {
  context.State().fieldLink = 0;
}

inline void FieldResult(Context& context, Number, Number) {
  if (const std::uint32_t link = context.State().fieldLink) context.ChangeCharacter().link = link;
}

// Destinations.

inline void Skip(Context& context, Number, Number) {
  context.SkipGroup();
}

inline void Transparent(Context&, Number, Number) {}

inline void SendTo(Context& context, Number destination, Number) {
  context.SendTextTo(static_cast<Destination>(destination));
}

inline void Note(Context& context, Number, Number) {
  context.BeginNote();
}

inline void SetAside(Context& context, Number destination, Number) {
  context.SetAside(static_cast<Destination>(destination));
}

// \upr says the same twice: in bytes, which are passed over, and after \ud in Unicode.
inline void UnicodeTwin(Context& context, Number, Number) {
  if (context.State().destination == Destination::Discard) context.SendTextTo(context.State().around);
}

}  // namespace richtext::rtf::handlers
