#include "look/FocusLine.h"

#include "look/PixelGrid.h"

namespace look {

void DrawFocusLine(QPainter& painter, const QRectF& rect, const QColor& ink) {
  QPen pen(ink, Hairline(painter));
  pen.setCapStyle(Qt::FlatCap);
  pen.setDashPattern({1, 1});
  pen.setDashOffset(0.5);  // it begins in the middle of a pixel, the dots at its edges
  painter.setBrush(Qt::NoBrush);
  painter.setPen(pen);
  painter.drawRect(WithinEdge(painter, rect));
}

}  // namespace look
