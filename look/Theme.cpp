#include "look/Theme.h"

#include "look/frmPicSource.h"

namespace look {
namespace {

// Never destroyed: pixmaps must not outlive the application object, and statics do.
Theme& InForce() {
  static auto* const theme = new Theme;
  return *theme;
}

QColor SurfaceOf(int index) {
  switch (index) {
    case 0:
      return QColor(0xC0, 0xC0, 0xFF);
    case 1:
      return QColor(0xFF, 0xC0, 0xC0);
    case 2:
      return QColor(0xFF, 0xC0, 0xFF);
    default:
      return Qt::black;
  }
}

}  // namespace

const Theme& CurrentTheme() {
  return InForce();
}

void PutOnTheme(int index) {
  Theme& theme = InForce();
  if (const QPixmap large = frmPicSource::picLarge(index); !large.isNull()) {
    theme.large = large;
    theme.button = frmPicSource::PicButtonSize(index);
  }
  theme.surface = SurfaceOf(index);
}

QColor HairlineOn(const QColor& surface) {
  return QColor::fromHslF(surface.hslHueF(), surface.hslSaturationF() > 0 ? 0.28f : 0.0f, 0.43f);
}

}  // namespace look
