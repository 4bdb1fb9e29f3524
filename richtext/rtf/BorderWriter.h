#pragma once

#include <string_view>

#include "richtext/document/Table.h"
#include "richtext/rtf/Output.h"
#include "richtext/rtf/Tables.h"

namespace richtext::rtf {

// Writes a border behind the word of the side that it is on; nothing where none is told.
void WriteBorder(std::string_view side, const Border& border, const Tables& tables, Output& out);

}  // namespace richtext::rtf
