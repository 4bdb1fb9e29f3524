#include "look/PixelGrid.h"

#include <algorithm>
#include <cmath>

namespace look {
namespace {

double ScaleOf(const QPainter& painter) {
  return std::abs(painter.deviceTransform().m11());
}

}  // namespace

QRectF OnPixels(const QPainter& painter, const QRectF& rect) {
  const QTransform toScreen = painter.deviceTransform();
  const QRectF place = toScreen.mapRect(rect);
  const QPoint from(qRound(place.left()), qRound(place.top())),
      to(qRound(place.right()), qRound(place.bottom()));
  return toScreen.inverted().mapRect(QRectF(from, to));
}

double OnPixels(const QPainter& painter, double length) {
  const double scale = ScaleOf(painter);
  return qRound(length * scale) / scale;
}

// A line of a pixel and a half would be a blurred one or an uneven one, and is a fine one.
double Hairline(const QPainter& painter) {
  const double scale = ScaleOf(painter);
  return std::max(1.0, std::floor(scale + 0.25)) / scale;
}

QRectF WithinEdge(const QPainter& painter, const QRectF& rect) {
  const double middle = Hairline(painter) / 2;
  return OnPixels(painter, rect).adjusted(middle, middle, -middle, -middle);
}

void FrameWithHairline(QPainter& painter, const QRectF& rect, const QColor& color) {
  const QRectF place = OnPixels(painter, rect);
  const double line = Hairline(painter);
  painter.fillRect(QRectF(place.topLeft(), QSizeF(place.width(), line)), color);
  painter.fillRect(QRectF(place.bottomLeft() - QPointF(0, line), QSizeF(place.width(), line)), color);
  const QSizeF side(line, place.height() - 2 * line);
  painter.fillRect(QRectF(place.topLeft() + QPointF(0, line), side), color);
  painter.fillRect(QRectF(place.topRight() + QPointF(-line, line), side), color);
}

}  // namespace look
