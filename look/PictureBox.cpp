#include "look/PictureBox.h"

#include <QtGui/QPainter>

namespace look {

PictureBox::PictureBox(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void PictureBox::SetPicture(const QPixmap& picture) {
  picture_ = picture;
  update();
}

void PictureBox::SetBackColor(std::uint32_t color) {
  backColor_ = color;
  update();
}

void PictureBox::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), QColor(backColor_ & 0xFF, backColor_ >> 8 & 0xFF, backColor_ >> 16 & 0xFF));
  painter.drawPixmap(0, 0, picture_);
}

}  // namespace look
