// The lengths of style sheets.
#pragma once

#include <optional>

#include <QtCore/QStringView>

namespace richtext::html {

// In pixels, 96 to the inch, 100,000 at most to either side, and 0 for what is no finite number. A letter
// that tells no size has 16, which "em" and "rem" are. Nothing for what is no length; a number without a unit
// is one of pixels. In small letters.
std::optional<double> PixelsOf(QStringView word);

}  // namespace richtext::html
