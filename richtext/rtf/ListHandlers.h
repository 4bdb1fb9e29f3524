// What the control words of lists and numberings do, in the manner of Handlers.h.
#pragma once

#include <algorithm>

#include "richtext/rtf/Handlers.h"

namespace richtext::rtf::handlers {

inline void ListOfTable(Context& context, Number, Number number) {
  if (context.State().destination == Destination::ListTable)
    context.Paragraphs().Lists().SetOverrideNumber(number);
  else if (context.State().destination == Destination::Numbering)
    context.NumberingInHand().isOfTable = true;
  else
    context.ChangeParagraph().listNumber = number;
}

inline void ListLevel(Context& context, Number, Number level) {
  context.ChangeParagraph().listLevel = std::clamp(level, 0, MaxListLevel);
}

template <void (ListTable::*Begin)()>
inline void BeginInTable(Context& context, Number, Number) {
  if (context.State().destination == Destination::ListTable) (context.Paragraphs().Lists().*Begin)();
}

template <void (ListTable::*Set)(Number)>
inline void SetInTable(Context& context, Number, Number number) {
  if (context.State().destination == Destination::ListTable) (context.Paragraphs().Lists().*Set)(number);
}

inline void BeginNumbering(Context& context, Number, Number) {
  context.NumberingInHand() = Numbering();
  context.SetAside(Destination::Numbering);
}

inline void NumberingKind(Context& context, Number kind, Number) {
  context.NumberingInHand().list.kind = static_cast<ListKind>(kind);
}

// Numbers of some kind, counted as the words before or after tell.
inline void NumberingBody(Context& context, Number, Number) {
  ListKind& kind = context.NumberingInHand().list.kind;
  if (kind == ListKind::None) kind = ListKind::Decimal;
}

// 1 to 9 are levels; 10 and 11 are lists without levels, 11 of bullets.
inline void NumberingLevel(Context& context, Number, Number level) {
  ListFormat& list = context.NumberingInHand().list;
  if (level == 11) list.kind = ListKind::Bullet;
  if (list.kind == ListKind::None) list.kind = ListKind::Decimal;
  if (level <= MaxListLevel + 1) list.level = std::max(level - 1, 0);
}

inline void NumberingStart(Context& context, Number, Number start) {
  context.NumberingInHand().list.start = start;
}

inline void NumberingTwin(Context& context, Number, Number) {
  context.NumberingInHand().list.twin = true;
}

inline void NumberingIndent(Context& context, Number, Number twips) {
  context.NumberingInHand().indent = twips;
}

inline void Label(Context& context, Number kind, Number) {
  context.BeginLabel(static_cast<WrittenLabel::Kind>(kind));
}

}  // namespace richtext::rtf::handlers
