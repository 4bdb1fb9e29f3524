// The instruction of a field that is a hyperlink: HYPERLINK "address" \l "anchor".
#pragma once

#include <string>
#include <string_view>

namespace richtext::rtf {

// The address, with "#" and the anchor when there is one; empty for any other field.
std::string LinkOfInstruction(std::string_view instruction);

// The instruction that tells a link.
std::string InstructionOfLink(std::string_view link);

}  // namespace richtext::rtf
