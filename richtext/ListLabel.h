// The labels of list paragraphs, such as "(iv)", which are made from a list's format and are no part of the
// text.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "richtext/Document.h"

namespace richtext {

constexpr char16_t Bullet = 0x2022;

// A list of bullets, each the first character of `text`: the signs that symbol fonts are used for come as
// characters of any font, and what has no sign becomes U+2022.
ListFormat BulletList(std::u16string_view text);

// `list` as a document can hold it: nothing is told that its kind does not use, and all is within Limits.h.
ListFormat FittingList(const ListFormat& list);

// What a label shows of its list, of which the item would be the first. Nothing when it holds neither a
// bullet nor a number.
std::optional<ListFormat> ListOfLabel(std::u16string_view label);

// The label of the item with this number.
std::u16string LabelText(const ListFormat& list, std::int32_t number);

}  // namespace richtext
