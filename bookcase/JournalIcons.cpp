#include "bookcase/JournalIcons.h"

#include <QtCore/QDir>
#include <QtCore/QMap>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

// The linker drops a static library's resources that nobody asks for. Outside any namespace, as the macro
// wants it.
static void KeepTheDrawings() {
  Q_INIT_RESOURCE(icons);
}

namespace {

// Pixels of the screen: a title bar's icon, and the list's at scalings of 100 to 300 percent.
constexpr int Sizes[] = {16, 32, 48, 64, 96};

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

QPixmap Drawn(QSvgRenderer& drawing, int size) {
  QPixmap picture(size, size);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  drawing.render(&painter, QRectF(0, 0, size, size));
  return picture;
}

QIcon Decoded(const QString& name) {
  QSvgRenderer drawing(QStringLiteral(":/icons/") + name);
  QIcon icon;
  for (const int size : Sizes) icon.addPixmap(Drawn(drawing, size));
  return icon;
}

}  // namespace

QIcon JournalIcon(int index) {
  // Never destroyed: pictures must not outlive the application object, and statics do.
  static auto* const icons = new QMap<QString, QIcon>;
  const QString& name = DrawingOf(index);
  QIcon& icon = (*icons)[name];
  if (icon.isNull()) icon = Decoded(name);
  return icon;
}

QString JournalIconName(int index) {
  constexpr int digits = 3, extension = 4;  // "01-" and ".svg"
  return DrawingOf(index).mid(digits).chopped(extension).replace(u'-', u' ');
}
