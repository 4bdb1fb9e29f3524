// The signs of Symbol and Wingdings as characters of any font.
#pragma once

#include <string_view>

#include "richtext/characters/CodePages.h"

namespace richtext {

// The page of a symbol font by its name; the one of U+F000 and the byte for other fonts, and for signs that
// are no characters elsewhere.
const CodePage& SignsOfFont(std::string_view name);

// A sign at U+F000 and its byte that one of the two fonts has, of an unknown one: U+FFFF where there is none.
char16_t SignAnywhere(char16_t unit);

}  // namespace richtext
