// Styles in markup, in the words that the toolkit understands.
#pragma once

#include <QtCore/QString>

#include "richtext/html/Tag.h"

namespace richtext::html {

// Of a style attribute or a sheet: colours become opaque ones, as they look on white, or none, and lines at
// text get the name that the toolkit knows. The rest stays as it is.
QString WithPlainColors(QStringView css);

// Likewise of the tag's styles. A picture tells by attributes the size that its style tells.
void MakeStylesPlain(Tag& tag);

}  // namespace richtext::html
