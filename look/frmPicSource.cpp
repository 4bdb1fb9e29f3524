#include "look/frmPicSource.h"

#include <QtCore/QtGlobal>

// Outside every namespace, as the macro asks. Without it the linker leaves the pictures out.
static void BringThePictures() {
  Q_INIT_RESOURCE(themes);
}

namespace {

constexpr const char* Names[] = {"blue", "pink", "purple"};

QPixmap Decoded(const char* kind, int index) {
  BringThePictures();
  if (index < 0 || index >= static_cast<int>(std::size(Names))) return {};
  return QPixmap(QStringLiteral(":/themes/%1-%2").arg(QLatin1String(Names[index]), QLatin1String(kind)));
}

}  // namespace

QPixmap frmPicSource::picLarge(int index) {
  return Decoded("large", index);
}

QPixmap frmPicSource::PicButtonSize(int index) {
  return Decoded("button", index);
}
