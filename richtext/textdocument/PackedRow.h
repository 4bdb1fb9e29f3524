// What a row of a table is, and what borders a paragraph has, as properties of the toolkit's formats.
#pragma once

#include <QtCore/QByteArray>

#include "richtext/document/Document.h"

namespace richtext {

QByteArray Packed(const RowFormat& row);
RowFormat Unpacked(const QByteArray& bytes);
QByteArray Packed(const ParagraphBorders& borders);
ParagraphBorders UnpackedBorders(const QByteArray& bytes);  // none of empty ones

}  // namespace richtext
