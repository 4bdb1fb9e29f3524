#include "look/PictureBox.h"

#include <utility>

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

void PictureBox::Repeat(Qt::Orientations directions) {
  repeats_ = directions;
  update();
}

void PictureBox::SetShade(std::function<void(QPainter&, const QRect&)> shade) {
  shade_ = std::move(shade);
  update();
}

void PictureBox::SetDesignWidth(int pixels) {
  designWidth_ = pixels;
  update();
}

void PictureBox::SetBackColor(std::uint32_t color) {
  backColor_ = color;
  update();
}

void PictureBox::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), platform::ToColor(backColor_));
  const double growth = designWidth_ > 0 ? double(width()) / designWidth_ : 1;
  painter.scale(growth, growth);
  const QSize room(qCeil(width() / growth), qCeil(height() / growth));
  if (shade_) shade_(painter, QRect(QPoint(), room));
  if (picture_.isNull()) return;
  painter.setRenderHint(QPainter::SmoothPixmapTransform);  // at scalings between the whole ones
  const QSize step = picture_.deviceIndependentSize().toSize().expandedTo({1, 1});
  const int right = repeats_.testFlag(Qt::Horizontal) ? room.width() : 1;
  const int bottom = repeats_.testFlag(Qt::Vertical) ? room.height() : 1;
  for (int top = 0; top < bottom; top += step.height())
    for (int left = 0; left < right; left += step.width()) painter.drawPixmap(left, top, picture_);
}

}  // namespace look
