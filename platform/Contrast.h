// How well one colour stands out against another.
#pragma once

#include <QtGui/QColor>

namespace platform {

// From 1, the same lightness, to 21, black on white, as the web's guidelines reckon it: 3 is enough for a
// mark to be seen, 4.5 for letters to be read.
double Contrast(const QColor& first, const QColor& second);

}  // namespace platform
