// What is hard-edged on the book's binding: gilt, the edges of the raised bands, the crease and the thread.
#pragma once

#include <QtGui/QPixmap>

// 63 x 1000 pixels, twice as many for a sharper screen; transparent beside these, so that the paper's colour
// behind it, with the light and shade that BindingShade.h paints, gives the book its own. Repeated downwards
// it shows no seam.
QPixmap BindingPicture();
