#include "look/FocusLine.h"

namespace look {

void DrawFocusLine(QPainter& painter, const QRectF& rect, const QColor& ink) {
  QPen pen(ink, 1);
  pen.setCapStyle(Qt::FlatCap);
  pen.setDashPattern({1, 1});
  pen.setDashOffset(0.5);  // it begins in the middle of a pixel, the dots at its edges
  painter.setBrush(Qt::NoBrush);
  painter.setPen(pen);
  painter.drawRect(rect.adjusted(0.5, 0.5, -0.5, -0.5));
}

}  // namespace look
