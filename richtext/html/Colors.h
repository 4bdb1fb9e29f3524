// The colours of style sheets, in the ways that browsers write them.
#pragma once

#include <optional>

#include <QtCore/QStringView>
#include <QtGui/QColor>

namespace richtext::html {

// The first colour among the words of a declaration's value, opaque, as it looks on white paper. Nothing
// where there is none or where it is clear: what a keyword such as "inherit" leads to is not looked for.
std::optional<QColor> FirstCssColor(QStringView value);

// The length of a value's first word; blanks in brackets do not end it.
qsizetype FirstWordOf(QStringView value);

}  // namespace richtext::html
