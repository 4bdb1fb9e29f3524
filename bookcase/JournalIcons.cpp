#include "bookcase/JournalIcons.h"

#include <QtCore/QDir>
#include <QtCore/QMap>

#include "look/DrawnIcon.h"

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

}  // namespace

QIcon JournalIcon(int index) {
  // Never destroyed: pictures must not outlive the application object, and statics do.
  static auto* const icons = new QMap<QString, QIcon>;
  const QString& name = DrawingOf(index);
  QIcon& icon = (*icons)[name];
  if (icon.isNull()) icon = look::DrawnIcon(QStringLiteral(":/icons/") + name, {}, TitleSizes);
  return icon;
}

QString JournalIconName(int index) {
  constexpr int digits = 3, extension = 4;  // "01-" and ".svg"
  return DrawingOf(index).mid(digits).chopped(extension).replace(u'-', u' ');
}
