#include "look/PictureBox.h"

#include <algorithm>

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

void PictureBox::RepeatDownwards() {
  repeats_ = true;
  update();
}

void PictureBox::SetBackColor(std::uint32_t color) {
  backColor_ = color;
  update();
}

void PictureBox::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), platform::ToColor(backColor_));
  painter.setRenderHint(QPainter::SmoothPixmapTransform);  // at scalings between the whole ones
  const int step = picture_.deviceIndependentSize().toSize().height();
  const int last = repeats_ && step > 0 ? height() : 1;
  for (int top = 0; top < last; top += std::max(step, 1)) painter.drawPixmap(0, top, picture_);
}

}  // namespace look
