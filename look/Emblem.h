// The emblem, a quill with a single thorn laid over a closed book, and the pictures that share its parts.
#pragma once

#include <QtGui/QIcon>
#include <QtGui/QPixmap>

namespace look {

// In pixels of the design, as large as the windows have grown (look/Growth.h).

// The quill standing in its inkwell: 80 by 70 pixels.
QIcon QuillAndInkwell();

// Crisp on the sharpest screen that there is now, whose scaling they carry.
QPixmap EmblemPicture(int side);
QPixmap ClaspedBook();          // 120 by 120 pixels
QPixmap HourglassAndInkwell();  // 64 by 64 pixels

// Gives the program the emblem as its icon, in 16 to 128 pixels of the screen, which every window without one
// of its own shows, if it has none yet.
void GiveTheProgramItsIcon();

}  // namespace look
