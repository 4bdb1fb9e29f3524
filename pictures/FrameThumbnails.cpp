#include "pictures/FrameThumbnails.h"

#include <algorithm>
#include <utility>

#include <QtGui/QLinearGradient>
#include <QtGui/QPainter>

#include "look/Growth.h"
#include "pictures/decoding/PictureFile.h"
#include "platform/Failure.h"

namespace {

constexpr QSize Size(40, 30);  // pixels of the design
constexpr QColor Sky(0x9c, 0xcb, 0xe4);
constexpr QColor Horizon(0xf3, 0xf6, 0xf2);

QImage Frame(const std::string& path, QSize size) try {
  if (path.empty()) return {};
  return pictures::LoadUpTo(path, 2 * size).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
} catch (const platform::Failure&) {
  return {};
}

QIcon OverSky(const std::string& path, double devicePixelRatio) {
  QPixmap picture((QSizeF(look::Grown(Size)) * devicePixelRatio).toSize());
  QPainter painter(&picture);
  QLinearGradient sky(0, 0, 0, picture.height());
  sky.setColorAt(0, Sky);
  sky.setColorAt(1, Horizon);
  painter.fillRect(picture.rect(), sky);
  painter.drawImage(0, 0, Frame(path, picture.size()));
  painter.end();
  picture.setDevicePixelRatio(devicePixelRatio);
  QIcon icon(picture);
  icon.addPixmap(picture, QIcon::Selected);  // the chosen one is no other
  return icon;
}

}  // namespace

FrameThumbnails::FrameThumbnails(QListWidget& list) : list_(list) {
  list.setIconSize(look::Grown(Size));
  list.setUniformItemSizes(true);
  QObject::connect(&turns_, &QTimer::timeout, [this] { DrawNext(); });
}

void FrameThumbnails::Show(std::vector<std::string> paths) {
  paths_ = std::move(paths);
  const QIcon sky = OverSky({}, list_.devicePixelRatioF());
  for (int row = 0; row < list_.count(); ++row) list_.item(row)->setIcon(sky);
  next_ = 0;
  turns_.start(0);
}

void FrameThumbnails::DrawNext() {
  if (!list_.isVisible() || next_ >= std::min(list_.count(), static_cast<int>(paths_.size())))
    return turns_.stop();
  const std::string& path = paths_[static_cast<std::size_t>(next_)];
  if (!path.empty()) list_.item(next_)->setIcon(OverSky(path, list_.devicePixelRatioF()));
  ++next_;
}
