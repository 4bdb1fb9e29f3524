#include "look/Emblem.h"

#include <QtGui/QIcon>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

namespace look {
namespace {

const QColor Paper(0xff, 0xfd, 0xf6);
const QColor Gilt(0xc9, 0xa2, 0x4b);
const QColor InkBlue(0x4a, 0x5f, 0x8f);

// The book is drawn on a grid of 32 by 32, whatever its size.
void PaintPages(QPainter& painter, const QPen& outline) {
  painter.setPen(outline);
  painter.setBrush(Paper);
  painter.drawRoundedRect(QRectF(7, 5.5, 20, 23.5), 2, 2);
}

void PaintCover(QPainter& painter, const QPen& outline, const QColor& cloth) {
  QLinearGradient light(4, 2, 26, 27);  // it falls from the top left
  light.setColorAt(0, cloth.lighter(118));
  light.setColorAt(1, cloth);
  painter.setPen(outline);
  painter.setBrush(light);
  painter.drawRoundedRect(QRectF(4, 2.5, 21.5, 24.5), 2, 2);
  painter.setPen(QPen(cloth.darker(135), 1));
  painter.drawLine(QPointF(9, 3.5), QPointF(9, 26));
  painter.setPen(QPen(Gilt, 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(QRectF(12.5, 6.5, 9.5, 6));
}

void PaintClasp(QPainter& painter) {
  painter.setPen(QPen(Gilt.darker(150), 0.8));
  painter.setBrush(Gilt);
  painter.drawRoundedRect(QRectF(18, 15.5, 9.5, 4), 1, 1);
  painter.drawEllipse(QPointF(19.5, 17.5), 2.8, 2.8);
  painter.setBrush(Gilt.darker(190));
  painter.drawEllipse(QPointF(19.5, 17.5), 0.7, 0.7);
}

}  // namespace

QPixmap ClosedBook(int size, const QColor& cloth, bool clasped) {
  const double ratio = qApp->devicePixelRatio();
  QPixmap picture((QSizeF(size, size) * ratio).toSize());
  picture.setDevicePixelRatio(ratio);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(size / 32.0, size / 32.0);
  const QPen outline(cloth.darker(165), 1.25, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  PaintPages(painter, outline);
  PaintCover(painter, outline, cloth);
  if (clasped) PaintClasp(painter);
  return picture;
}

void GiveTheProgramItsIcon() {
  if (!QApplication::windowIcon().isNull()) return;
  QIcon icon;
  for (const int size : {16, 32, 64}) icon.addPixmap(ClosedBook(size, InkBlue));
  QApplication::setWindowIcon(icon);
}

}  // namespace look
