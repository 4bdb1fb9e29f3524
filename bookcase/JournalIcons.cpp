#include "bookcase/JournalIcons.h"

#include <algorithm>

#include <QtCore/QDir>
#include <QtCore/QMap>
#include <QtGui/QIconEngine>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

// The linker drops a static library's resources that nobody asks for. Outside any namespace, as the macro
// wants it.
static void KeepTheDrawings() {
  Q_INIT_RESOURCE(icons);
}

namespace {

// What a window manager is offered for a title bar and its own lists of windows, in pixels of the screen.
const QList<QSize> TitleSizes = {{16, 16}, {32, 32}, {48, 48}, {64, 64}, {96, 96}};

// In the order of their names, which begin with the index in two digits.
const QStringList& Drawings() {
  static const QStringList drawings = [] {
    KeepTheDrawings();
    return QDir(QStringLiteral(":/icons")).entryList(QDir::Files, QDir::Name);
  }();
  return drawings;
}

const QString& DrawingOf(int index) {
  return Drawings().at(index < 1 || index > JournalIconCount ? 0 : index - 1);
}

QPixmap Drawn(const QString& name, int side) {
  QSvgRenderer drawing(QStringLiteral(":/icons/") + name);
  QPixmap picture(side, side);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  drawing.render(&painter, QRectF(0, 0, side, side));
  return picture;
}

// Draws each size when it is first asked for: a bookcase of many journals is listed before anybody sees it.
class DrawnWhenSeen : public QIconEngine {
 public:
  explicit DrawnWhenSeen(const QString& name) : name_(name) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    painter->drawPixmap(rect, pixmap(rect.size() * painter->device()->devicePixelRatioF(), mode, state));
  }
  // In pixels of the screen.
  QPixmap pixmap(const QSize& size, QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
    QPixmap& picture = drawn_[std::min(size.width(), size.height())];
    if (picture.isNull()) picture = Drawn(name_, std::min(size.width(), size.height()));
    return picture;
  }
  QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) override { return TitleSizes; }
  QIconEngine* clone() const override { return new DrawnWhenSeen(*this); }

 private:
  QString name_;
  QMap<int, QPixmap> drawn_;
};

}  // namespace

QIcon JournalIcon(int index) {
  // Never destroyed: pictures must not outlive the application object, and statics do.
  static auto* const icons = new QMap<QString, QIcon>;
  const QString& name = DrawingOf(index);
  QIcon& icon = (*icons)[name];
  if (icon.isNull()) icon = QIcon(new DrawnWhenSeen(name));
  return icon;
}

QString JournalIconName(int index) {
  constexpr int digits = 3, extension = 4;  // "01-" and ".svg"
  return DrawingOf(index).mid(digits).chopped(extension).replace(u'-', u' ');
}
