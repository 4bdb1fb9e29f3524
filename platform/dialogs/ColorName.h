// A colour in words, for who hears it.
#pragma once

#include <QtGui/QColor>

namespace platform {

// "dark blue, #1c2b6e".
QString ColorInWords(const QColor& color);

}  // namespace platform
