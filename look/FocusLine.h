// Where the keyboard is: the one line that every control of the diary's own drawing shows.
#pragma once

#include <QtGui/QColor>
#include <QtGui/QPainter>

namespace look {

// A dotted line just inside the rectangle.
void DrawFocusLine(QPainter& painter, const QRectF& rect, const QColor& ink);

}  // namespace look
