// Colours as the data files hold them, 0x00BBGGRR, to and from the toolkit's.
#pragma once

#include <cstdint>

#include <QtGui/QColor>

namespace platform {

inline QColor ToColor(std::uint32_t color) {
  return QColor(color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF);
}

inline std::uint32_t FromColor(const QColor& color) {
  return static_cast<std::uint32_t>(color.red() | color.green() << 8 | color.blue() << 16);
}

}  // namespace platform
