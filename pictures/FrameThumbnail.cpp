#include "pictures/FrameThumbnail.h"

#include <QtGui/QLinearGradient>
#include <QtGui/QPainter>

#include "pictures/decoding/PictureFile.h"
#include "platform/Failure.h"

namespace {

constexpr QColor Sky(0x9c, 0xcb, 0xe4);
constexpr QColor Horizon(0xf3, 0xf6, 0xf2);

QImage Frame(const std::string& path, QSize size) try {
  if (path.empty()) return {};
  return pictures::LoadUpTo(path, 2 * size).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
} catch (const platform::Failure&) {
  return {};
}

}  // namespace

QIcon FrameThumbnail(const std::string& path, double devicePixelRatio) {
  QPixmap picture((QSizeF(FrameThumbnailSize) * devicePixelRatio).toSize());
  QPainter painter(&picture);
  QLinearGradient sky(0, 0, 0, picture.height());
  sky.setColorAt(0, Sky);
  sky.setColorAt(1, Horizon);
  painter.fillRect(picture.rect(), sky);
  painter.drawImage(0, 0, Frame(path, picture.size()));
  painter.end();
  picture.setDevicePixelRatio(devicePixelRatio);
  return picture;
}
