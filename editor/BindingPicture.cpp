#include "editor/BindingPicture.h"

#include <QtGui/QPainter>

namespace {

constexpr int Width = 63;
constexpr int Height = 1000;
constexpr int Hinge = 52;  // where the rounded spine ends and the groove begins
constexpr int BandStep = 125;
constexpr int BandHeight = 14;

QColor Shade(int alpha) {
  return QColor(0x2b, 0x24, 0x30, alpha);
}
QColor Shine(int alpha) {
  return QColor(0xff, 0xfd, 0xf6, alpha);
}

// Light comes from the top left: the rounded spine turns away from it towards the hinge.
void PaintSpine(QPainter& painter) {
  QLinearGradient round(0, 0, Hinge, 0);
  round.setColorAt(0, Shade(120));
  round.setColorAt(0.3, Shade(45));
  round.setColorAt(0.42, Shine(40));
  round.setColorAt(0.6, Shade(50));
  round.setColorAt(1, Shade(130));
  painter.fillRect(0, 0, Hinge, Height, round);
}

void PaintHinge(QPainter& painter) {
  QLinearGradient groove(Hinge, 0, Width, 0);
  groove.setColorAt(0, Shade(170));
  groove.setColorAt(0.35, Shade(70));
  groove.setColorAt(0.6, Shine(60));
  groove.setColorAt(1, Shade(40));
  painter.fillRect(Hinge, 0, Width - Hinge, Height, groove);
}

void PaintBand(QPainter& painter, int top) {
  QLinearGradient raised(0, top, 0, top + BandHeight);
  raised.setColorAt(0, Shine(90));
  raised.setColorAt(0.5, Shade(0));
  raised.setColorAt(1, Shade(110));
  painter.fillRect(0, top, Hinge, BandHeight, raised);
  const QColor gilt(0xc9, 0xa2, 0x4b, 210);
  painter.fillRect(0, top - 4, Hinge, 1, gilt);
  painter.fillRect(0, top + BandHeight + 3, Hinge, 1, gilt);
}

void PaintStitches(QPainter& painter, int top, int bottom) {
  for (int y = top; y + 6 <= bottom; y += 12) {
    painter.fillRect(Hinge + 7, y, 1, 6, Shade(120));
    painter.fillRect(Hinge + 8, y + 1, 1, 6, Shine(120));
  }
}

}  // namespace

QPixmap BindingPicture() {
  QPixmap picture(Width, Height);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  PaintSpine(painter);
  PaintHinge(painter);
  for (int top = BandStep / 2; top < Height; top += BandStep) {
    PaintBand(painter, top);
    PaintStitches(painter, top + BandHeight + 12, top + BandStep - 12);
  }
  return picture;
}
