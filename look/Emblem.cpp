#include "look/Emblem.h"

#include <QtWidgets/QApplication>

#include "look/DrawnIcon.h"
#include "look/Growth.h"

// Outside every namespace, as the macro asks. Without it the linker leaves the pictures out.
static void BringTheDrawings() {
  Q_INIT_RESOURCE(emblem);
}

namespace look {
namespace {

// Rendered beforehand: the toolkit decodes a picture several times faster than it draws its vector source,
// and the program's start waits for it. With a picture it takes those for sharper screens that lie beside it,
// but enlarges none.
QIcon Drawing(const char* name) {
  BringTheDrawings();
  const QString path = QStringLiteral(":/emblem/") + QLatin1String(name);
  if (Growth() == 1) return QIcon(path + QStringLiteral(".png"));
  constexpr int times = 3;
  const QImage sharpest(path + QStringLiteral("@%1x.png").arg(times));
  const double scale = qGuiApp->devicePixelRatio();
  QPixmap grown = QPixmap::fromImage(sharpest.scaled(Grown(sharpest.size() / times) * scale,
                                                     Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  grown.setDevicePixelRatio(scale);
  return QIcon(grown);
}

}  // namespace

QIcon QuillAndInkwell() {
  return Drawing("quill-and-inkwell");
}

// Where it shows, nothing waits for it.
QPixmap EmblemPicture(int side) {
  BringTheDrawings();
  const double scale = qGuiApp->devicePixelRatio();
  QPixmap picture = Drawn(QStringLiteral(":/emblem/emblem.svg"), qRound(Grown(side) * scale));
  picture.setDevicePixelRatio(scale);
  return picture;
}

QPixmap ClaspedBook() {
  return Drawing("clasped-book").pixmap(Grown(QSize(120, 120)));
}

QPixmap HourglassAndInkwell() {
  return Drawing("hourglass-and-inkwell").pixmap(Grown(QSize(64, 64)));
}

void GiveTheProgramItsIcon() {
  if (!QApplication::windowIcon().isNull()) return;
  BringTheDrawings();
  QIcon icon;
  for (const int size : {16, 22, 32, 48, 64, 128}) icon.addFile(QStringLiteral(":/emblem/%1.png").arg(size));
  QApplication::setWindowIcon(icon);
}

}  // namespace look
