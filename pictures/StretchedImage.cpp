#include "pictures/StretchedImage.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

StretchedImage::StretchedImage(QWidget* parent) : QWidget(parent) {}

void StretchedImage::SetPicture(const QImage& picture) {
  picture_ = picture;
  update();
}

void StretchedImage::mousePressEvent(QMouseEvent* /*event*/) {
  Q_EMIT MouseDown();
}

void StretchedImage::mouseMoveEvent(QMouseEvent* /*event*/) {
  Q_EMIT MouseMove();
}

void StretchedImage::mouseReleaseEvent(QMouseEvent* event) {
  Q_EMIT MouseUp();
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) Q_EMIT Click();
}

void StretchedImage::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton)
    Q_EMIT DblClick();
  else
    Q_EMIT MouseDown();
}

void StretchedImage::wheelEvent(QWheelEvent* event) {
  Q_EMIT Wheel(event);
  event->accept();
}

void StretchedImage::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(rect(), picture_);
}
