// What the control words do: one handler for each, or for each family of them. A handler's numbers are the
// argument that its word has in the table, and the parameter.
#pragma once

#include <algorithm>
#include <cstdint>

#include "richtext/RtfContext.h"

namespace richtext::handlers {

using Context = RtfContext;
using Number = std::int32_t;

// Characters and paragraph ends.

inline void Character(Context& context, Number character, Number) {
  context.PutCharacter(static_cast<char16_t>(character));
}

inline void ParagraphEnd(Context& context, Number, Number) {
  context.EndParagraph();
}

inline void Unicode(Context& context, Number, Number number) {
  context.PutUnicode(number);
}

inline void FallbackLength(Context& context, Number, Number length) {
  context.State().fallbackLength = std::max(length, 0);
}

// The document's code page.

inline void CharacterSet(Context& context, Number page, Number) {
  context.SetCharacterSetPage(page);
}
inline void AnsiCodePage(Context& context, Number, Number page) {
  context.SetAnsiPage(page);
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

template <void (RtfColorTable::*Set)(Number)>
inline void Component(Context& context, Number, Number value) {
  if (context.State().destination == Destination::ColorTable) (context.Colors().*Set)(value);
}

inline void Color(Context& context, Number, Number index) {
  context.ChangeCharacter().color = context.Colors().Find(index);
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

// Paragraphs' looks.

inline void ParagraphDefault(Context& context, Number, Number) {
  context.ChangeParagraph() = ParagraphFormat();
}

inline void Align(Context& context, Number alignment, Number) {
  context.ChangeParagraph().alignment = static_cast<Alignment>(alignment);
}

template <Number ParagraphFormat::*Measure>
inline void Indent(Context& context, Number, Number twips) {
  context.ChangeParagraph().*Measure = FittingIndent(twips);
}

// Destinations.

inline void Skip(Context& context, Number, Number) {
  context.SkipGroup();
}

inline void Transparent(Context&, Number, Number) {}

inline void SendTo(Context& context, Number destination, Number) {
  context.SendTextTo(static_cast<Destination>(destination));
}

// \upr says the same twice: in bytes, which are passed over, and after \ud in Unicode.
inline void UnicodeTwin(Context& context, Number, Number) {
  if (context.State().destination == Destination::Discard) context.SendTextTo(context.State().around);
}

inline void PictureGroup(Context& context, Number, Number) {
  if (context.Depth() <= 1) return;
  context.SendTextTo(Destination::Picture);
  context.PictureInHand().Begin();
}

}  // namespace richtext::handlers
