#include "bookcase/ShelfBoard.h"

#include <QtGui/QLinearGradient>

#include "look/Growth.h"
#include "look/PixelGrid.h"

namespace {

// Of walnut, from the light to the outline.
constexpr QColor Light(0xc9, 0xa5, 0x83);
constexpr QColor Fill(0x96, 0x71, 0x4f);
constexpr QColor Shade(0x74, 0x55, 0x39);
constexpr QColor Line(0x48, 0x33, 0x21);

constexpr int Lip = 3;      // the pixels of the upper side that one sees
constexpr int Shadow = 10;  // pixels

void Fall(QPainter& painter, const QRect& place, const QColor& from, const QColor& to) {
  QLinearGradient light(0, place.top(), 0, place.top() + place.height());
  light.setColorAt(0, from);
  light.setColorAt(1, to);
  painter.fillRect(place, light);
}

QColor Faint(QColor color, int alpha) {
  color.setAlpha(alpha);
  return color;
}

// Long and short strokes in turn, none twice at the same distance.
void Grain(QPainter& painter, int width) {
  constexpr int runs[] = {61, 37, 89, 23, 113, 47};
  painter.setPen(Faint(Line, 60));
  int at = 11;
  for (int i = 0; at < width; ++i) {
    const int run = runs[i % 6];
    const int y = Lip + 1 + (i * 2) % (ShelfBoardHeight - Lip - 2);
    painter.drawLine(at, y, at + run, y);
    at += run + runs[(i + 2) % 6] / 2;
  }
}

}  // namespace

void PaintShelfBoard(QPainter& painter, int top, int width) {
  const double growth = look::Growth();
  const int room = qCeil(width / growth);
  painter.save();
  painter.translate(0, top);
  painter.scale(growth, growth);
  Fall(painter, {0, 0, room, Lip}, Fill, Light);
  Fall(painter, {0, Lip, room, ShelfBoardHeight - Lip}, Fill, Shade);
  Grain(painter, room);
  const double line = look::Hairline(painter);
  const QRectF board = look::OnPixels(painter, QRectF(0, 0, room, ShelfBoardHeight));
  painter.fillRect(QRectF(0, board.bottom() - line, room, line), Line);
  Fall(painter, {0, ShelfBoardHeight, room, Shadow}, Faint(Line, 70), Faint(Line, 0));
  painter.restore();
}
