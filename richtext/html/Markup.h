// Markup from elsewhere in the words that the toolkit understands.
#pragma once

#include <vector>

#include <QtCore/QString>

#include "richtext/document/Document.h"

namespace richtext::html {

// Colours become opaque ones, as they look on white, or none; pictures that tell their size by a style tell
// it by attributes; rows and cells beyond what a table of that much markup has become plain text; and what is
// nested deeper than a person would is flat from there on, since the toolkit looks through all that is open
// for each element.
struct PlainMarkup {
  QString html;
  std::vector<ParagraphBorders> frames;  // by number (Frames.h)
};
PlainMarkup WithPlainWords(const QString& html);

}  // namespace richtext::html
