// The face of a button: a label of paper, through which the theme's material glimmers where there is one.
#pragma once

#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtGui/QPixmap>

namespace look {

struct ButtonFace {
  QRect place;
  QPixmap material;  // laid in tiles, its middle in the button's middle; null: paper alone
  QPalette palette;  // its edges take the hue of Button
  bool isEnabled = true;
  bool isDown = false;
  bool isUnderMouse = false;
  bool isDefault = false;  // has a double edge
  bool isStitched = true;  // where it is high enough
  bool hasFocus = false;   // in the place of the stitches
};

// What stands on a button that is down is drawn so much lower.
inline constexpr QPoint Sunk(1, 1);

void PaintButtonFace(QPainter& painter, const ButtonFace& face);

}  // namespace look
