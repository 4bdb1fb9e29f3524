#include "look/PictureButton.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

namespace look {
namespace {

constexpr double Corner = 2;

QPainterPath Outline(const QRectF& rect, double inset) {
  QPainterPath path;
  path.addRoundedRect(rect.adjusted(inset, inset, -inset, -inset), Corner, Corner);
  return path;
}

QColor Veil(const QColor& color, int alpha) {
  QColor veil = color;
  veil.setAlpha(alpha);
  return veil;
}

}  // namespace

PictureButton::PictureButton(const QString& caption, QWidget* parent) : QPushButton(caption, parent) {
  setAttribute(Qt::WA_Hover);
}

void PictureButton::SetPicture(const QPixmap& picture) {
  picture_ = picture;
  update();
}

void PictureButton::paintEvent(QPaintEvent* event) {
  if (picture_.isNull()) return QPushButton::paintEvent(event);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  PaintFace(painter);
  PaintEdges(painter);
  PaintCaption(painter);
}

// The face lies under the caption at its natural size, its middle in the button's middle.
void PictureButton::PaintFace(QPainter& painter) const {
  const QPainterPath outline = Outline(rect(), 0.5);
  painter.setClipPath(outline);
  const QSizeF offset = (QSizeF(size()) - picture_.deviceIndependentSize()) / 2;
  if (offset.width() > 0 || offset.height() > 0) {
    painter.drawPixmap(rect(), picture_);  // a button larger than its face stretches it
  } else {
    painter.drawPixmap(qRound(offset.width()), qRound(offset.height()), picture_);
  }
  if (!isEnabled()) {
    painter.fillPath(outline, Veil(Qt::white, 110));
  } else if (isDown()) {
    painter.fillPath(outline, Veil(Edge(), 50));
  } else if (underMouse()) {
    painter.fillPath(outline, Veil(Qt::white, 90));
  }
  painter.setClipping(false);
}

// Light from the top left: a highlight along the upper and left edge, which goes when the button is pressed.
void PictureButton::PaintEdges(QPainter& painter) const {
  if (!isDown()) {
    painter.setPen(Veil(Qt::white, 170));
    painter.drawLine(QPointF(2.5, 1.5), QPointF(width() - 2.5, 1.5));
    painter.drawLine(QPointF(1.5, 2.5), QPointF(1.5, height() - 2.5));
  }
  painter.setBrush(Qt::NoBrush);
  painter.setPen(Veil(Edge(), isEnabled() ? 255 : 120));
  painter.drawPath(Outline(rect(), 0.5));
  if (isDefault() && isEnabled()) painter.drawPath(Outline(rect(), 1.5));
  if (!hasFocus()) return;
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setPen(QPen(palette().color(QPalette::ButtonText), 1, Qt::DotLine));
  painter.drawRect(rect().adjusted(4, 4, -5, -5));
}

void PictureButton::PaintCaption(QPainter& painter) const {
  const QPoint sunk = isDown() ? QPoint(1, 1) : QPoint();
  painter.setPen(Veil(palette().color(QPalette::Active, QPalette::ButtonText), isEnabled() ? 255 : 110));
  painter.drawText(rect().translated(sunk), Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextSingleLine,
                   text());
}

// The hairline has the face's own hue, some steps darker.
QColor PictureButton::Edge() const {
  return palette().color(QPalette::Button).darker(190);
}

}  // namespace look
