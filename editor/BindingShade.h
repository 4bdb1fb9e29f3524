// The light and shade on the binding and beside it, painted over the paper's colour, which gives the book its
// own. What is hard-edged lies over it as a picture (BindingPicture.h).
#pragma once

#include <QtGui/QPainter>

// Over the whole binding, from its top: the round of the spine, the raised bands, the hinge groove, and at
// the right edge the hairline of the page block.
void PaintBindingShade(QPainter& painter, const QRect& binding);

// Along the left edge of the page, which dips into the gutter there.
void PaintGutterShade(QPainter& painter, const QRect& page);
