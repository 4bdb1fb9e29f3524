// The theme in force: what a window wears.
#pragma once

#include <QtGui/QColor>
#include <QtGui/QPixmap>

namespace look {

struct Theme {
  QPixmap large;   // 800 x 600 pixels, the background of windows
  QPixmap button;  // about 200 x 110 pixels, the face of buttons
  QColor surface;  // plain surfaces beside them
};

// Made on first use for the theme number in optColor.
const Theme& CurrentTheme();

}  // namespace look
