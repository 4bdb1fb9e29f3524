// The book's binding, painted over whatever colour the paper has.
#pragma once

#include <QtGui/QPixmap>

// 63 x 1000 pixels: a spine with raised bands and a hinge groove at its right. Its shades are half
// transparent, so that the colour behind it gives the book its colour.
QPixmap BindingPicture();
