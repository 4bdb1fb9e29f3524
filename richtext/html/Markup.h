// Markup from elsewhere in the words that the toolkit understands.
#pragma once

#include <QtCore/QString>

namespace richtext::html {

// Colours become opaque ones, as they look on white, or none; pictures that tell their size by a style tell
// it by attributes; rows and cells beyond what a table of that much markup has become plain text; and what is
// nested deeper than a person would is flat from there on, since the toolkit looks through all that is open
// for each element.
QString WithPlainWords(const QString& html);

}  // namespace richtext::html
