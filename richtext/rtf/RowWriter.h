// Writes what a table's row is, which stands before its cells.
#pragma once

#include "richtext/document/Table.h"
#include "richtext/rtf/Output.h"
#include "richtext/rtf/Tables.h"

namespace richtext::rtf {

void WriteRow(const RowFormat& format, const Tables& tables, Output& out);

}  // namespace richtext::rtf
