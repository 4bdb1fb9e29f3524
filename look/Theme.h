// The theme in force: what a window wears.
#pragma once

#include <QtGui/QColor>
#include <QtGui/QPixmap>

namespace look {

struct Theme {
  QPixmap large;   // 800 x 600 pixels, the background of windows
  QPixmap button;  // about 200 x 110 pixels, the face of buttons
  QColor surface;  // plain surfaces beside them; invalid for the desktop's own
};

// Before a theme was put on, windows are plain: no pictures, and the desktop's colours.
const Theme& CurrentTheme();

// 0 blue, 1 pink, 2 purple. Any other number leaves the pictures and makes the surface black. Windows that
// stand open are not told.
void PutOnTheme(int index);

// Lines and marks on a surface: its own hue, some steps darker.
QColor HairlineOn(const QColor& surface);

}  // namespace look
