// What a row of a table is, as a property of the toolkit's formats.
#pragma once

#include <QtCore/QByteArray>

#include "richtext/document/Table.h"

namespace richtext {

QByteArray Packed(const RowFormat& row);
RowFormat Unpacked(const QByteArray& bytes);

}  // namespace richtext
