// Fields whose instruction tells what they show: one sign, as SYMBOL 74 \f Wingdings does, or the words on a
// button, as MACROBUTTON None Your name does.
#pragma once

#include <cstdint>
#include <string_view>

namespace richtext::rtf {

// The number of the sign in the form of a \u; 0 when the instruction tells of none.
std::int32_t SignOfInstruction(std::string_view instruction);
// The words on the button, UTF-8; empty when the instruction tells of none.
std::string_view ButtonOfInstruction(std::string_view instruction);

}  // namespace richtext::rtf
