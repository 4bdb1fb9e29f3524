// The labels of list paragraphs, such as "(iv)", which are made from a list's format and are no part of the
// text.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "richtext/document/Document.h"

namespace richtext {

constexpr char16_t Bullet = 0x2022;

// A sign of Symbol or Wingdings as a character of any font: what has none becomes U+2022. Every other
// character stays.
char16_t ShownBullet(char16_t unit);

// A list of bullets, each `text` as any font shows it, and U+2022 when there is none. Blanks alone are one,
// which shows nothing.
ListFormat BulletList(std::u16string_view text);

inline bool IsBlankBullet(const ListFormat& list) {
  return list.kind == ListKind::Bullet && list.before.size() == 1 && list.before[0] == u' ';
}

// Whether the bullets are the sign that every symbol font has.
inline bool IsPlainBullet(const ListFormat& list) {
  return list.kind == ListKind::Bullet && list.before.size() == 1 && list.before[0] == Bullet;
}

// `list` as a document can hold it: nothing is told that its kind does not use, and all is within Limits.h.
ListFormat FittingList(const ListFormat& list);

// What a label shows of its list, of which the item would be the first. Nothing when it holds neither a
// bullet nor a number.
std::optional<ListFormat> ListOfLabel(std::u16string_view label);

// A number in the way of counting of a list; of 0 and less, and where letters tell none, in digits.
std::u16string NumberText(ListKind kind, std::int32_t number);

// The label of the item with this number.
std::u16string LabelText(const ListFormat& list, std::int32_t number);

}  // namespace richtext
