// The pictures of the themes as they travel in the program. Each call decodes one, and whoever keeps it
// shares it; nothing stays here.
#pragma once

#include <QtGui/QPixmap>

namespace frmPicSource {

// 0 blue, 1 pink, 2 purple; a null picture for any other number.
QPixmap picLarge(int index);       // 800 x 600 pixels, the background of windows
QPixmap PicButtonSize(int index);  // about 200 x 110 pixels, the face of buttons

}  // namespace frmPicSource
