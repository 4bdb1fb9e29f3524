#include "look/Emblem.h"

#include <QtWidgets/QApplication>

#include "look/DrawnIcon.h"

// Outside every namespace, as the macro asks. Without it the linker leaves the pictures out.
static void BringTheDrawings() {
  Q_INIT_RESOURCE(emblem);
}

namespace look {
namespace {

// Rendered beforehand: the toolkit decodes a picture several times faster than it draws its vector source,
// and the program's start waits for it. With a picture it takes those for sharper screens that lie beside it.
QIcon Drawing(const char* name) {
  BringTheDrawings();
  return QIcon(QStringLiteral(":/emblem/%1.png").arg(QLatin1String(name)));
}

}  // namespace

QIcon QuillAndInkwell() {
  return Drawing("quill-and-inkwell");
}

// Where it shows, nothing waits for it.
QPixmap EmblemPicture(int side) {
  BringTheDrawings();
  const double scale = qGuiApp->devicePixelRatio();
  QPixmap picture = Drawn(QStringLiteral(":/emblem/emblem.svg"), qRound(side * scale));
  picture.setDevicePixelRatio(scale);
  return picture;
}

QPixmap ClaspedBook() {
  return Drawing("clasped-book").pixmap(QSize(120, 120));
}

QPixmap HourglassAndInkwell() {
  return Drawing("hourglass-and-inkwell").pixmap(QSize(64, 64));
}

void GiveTheProgramItsIcon() {
  if (!QApplication::windowIcon().isNull()) return;
  BringTheDrawings();
  QIcon icon;
  for (const int size : {16, 22, 32, 48, 64, 128}) icon.addFile(QStringLiteral(":/emblem/%1.png").arg(size));
  QApplication::setWindowIcon(icon);
}

}  // namespace look
