// Styles in markup, in the words that the toolkit understands.
#pragma once

#include <QtCore/QString>

#include "richtext/html/Tag.h"

namespace richtext::html {

// Of a style attribute or a sheet: colours become opaque ones, as they look on white, or none, lengths are
// told in pixels and letters in points, and lines at text get the name that the toolkit knows. The rest stays
// as it is.
QString WithPlainValues(QStringView css);

// Likewise of the tag's styles. What the toolkit reads in attributes alone is told by these: the size of a
// picture, the width of a cell, and where the words of a paragraph stand.
void MakeStylesPlain(Tag& tag);

}  // namespace richtext::html
