#include "look/DrawnIcon.h"

#include <algorithm>
#include <utility>

#include <QtCore/QMap>
#include <QtGui/QIconEngine>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

namespace look {
namespace {

class DrawnWhenSeen : public QIconEngine {
 public:
  DrawnWhenSeen(const QString& drawing, const QString& lit, const QList<QSize>& sizes)
      : drawing_(drawing), lit_(lit.isEmpty() ? drawing : lit), sizes_(sizes) {}

  // On whole pixels of the screen, at scalings between the whole ones too.
  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const double scale = painter->device()->devicePixelRatioF();
    QPixmap picture = pixmap(rect.size() * scale, mode, state);
    picture.setDevicePixelRatio(scale);
    const QTransform toScreen = painter->deviceTransform();
    const QPoint corner = toScreen.map(QPointF(rect.topLeft())).toPoint();
    painter->drawPixmap(toScreen.inverted().map(QPointF(corner)), picture);
  }
  // In pixels of the screen.
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/) override {
    const QString& source = mode == QIcon::Active ? lit_ : drawing_;
    QPixmap& picture = drawn_[{source, std::min(size.width(), size.height())}];
    if (picture.isNull()) picture = Drawn(source, std::min(size.width(), size.height()));
    return picture;
  }
  QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) override { return sizes_; }
  QIconEngine* clone() const override { return new DrawnWhenSeen(*this); }

 private:
  QString drawing_;
  QString lit_;
  QList<QSize> sizes_;
  QMap<std::pair<QString, int>, QPixmap> drawn_;
};

}  // namespace

QIcon DrawnIcon(const QString& drawing, const QString& lit, const QList<QSize>& sizes) {
  return QIcon(new DrawnWhenSeen(drawing, lit, sizes));
}

QPixmap Drawn(const QString& drawing, int side) {
  QSvgRenderer source(drawing);
  QPixmap picture(side, side);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  source.render(&painter, QRectF(0, 0, side, side));
  return picture;
}

}  // namespace look
