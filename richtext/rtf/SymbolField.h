// Fields that stand for one sign, such as SYMBOL 74 \f Wingdings.
#pragma once

#include <cstdint>
#include <string_view>

namespace richtext::rtf {

// The number of the sign in the form of a \u; 0 when the instruction tells of none.
std::int32_t SignOfInstruction(std::string_view instruction);

}  // namespace richtext::rtf
