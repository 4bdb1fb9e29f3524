// What every window wears, whatever the desktop's colours and the manner of its controls are: paper and
// board, and on them the theme.
#pragma once

#include <QtGui/QColor>
#include <QtGui/QPalette>

namespace look {

inline constexpr QColor Ink(0x2b, 0x24, 0x30);
inline constexpr QColor Paper(0xff, 0xfd, 0xf6);
inline constexpr QColor Board(0xf4, 0xec, 0xdd);
inline constexpr QColor Walnut(0x74, 0x55, 0x39);
inline constexpr QColor Gilt(0xc9, 0xa2, 0x4b);
inline constexpr QColor InkBlue(0x46, 0x5a, 0x8f);

// The first colour with that share, 0 to 1, over the second one.
QColor Mixed(const QColor& first, const QColor& second, float share);

// Of windows that do not follow the theme: paper on board, what is chosen in ink blue.
QPalette PaperPalette();
// Of what lies on a theme's pale surface: the same paper and ink, what is chosen in the surface's own hue.
QPalette PaletteOn(const QColor& surface);

}  // namespace look
