// The book's binding, painted over whatever colour the paper has.
#pragma once

#include <QtGui/QPixmap>

// 63 x 1000 pixels, twice as many for a sharper screen: a spine with raised bands and a hinge groove at its
// right. Its shades are scattered dark and light pixels over transparency, so that the colour behind it gives
// the book its colour. Repeated downwards it shows no seam.
QPixmap BindingPicture();
