#include "look/PictureBox.h"

#include <QtGui/QPainter>

#include "platform/Colors.h"

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
  painter.fillRect(rect(), platform::ToColor(backColor_));
  painter.drawPixmap(0, 0, picture_);
}

}  // namespace look
