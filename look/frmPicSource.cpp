#include "look/frmPicSource.h"

#include <QtGui/QGuiApplication>

// Outside every namespace, as the macro asks. Without it the linker leaves the pictures out.
static void BringThePictures() {
  Q_INIT_RESOURCE(themes);
}

namespace {

constexpr const char* Names[] = {"blue", "pink", "purple"};

// For a sharper screen there is the same material with a finer grain; by its name the toolkit knows its
// scaling.
QPixmap Decoded(const char* kind, int index) {
  BringThePictures();
  if (index < 0 || index >= static_cast<int>(std::size(Names))) return {};
  const auto scaling = QLatin1String(qGuiApp->devicePixelRatio() > 1 ? "@2x" : "");
  return QPixmap(
      QStringLiteral(":/themes/%1-%2%3").arg(QLatin1String(Names[index]), QLatin1String(kind), scaling));
}

}  // namespace

QPixmap frmPicSource::picLarge(int index) {
  return Decoded("large", index);
}

QPixmap frmPicSource::PicButtonSize(int index) {
  return Decoded("button", index);
}
