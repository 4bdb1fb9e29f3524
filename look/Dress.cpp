#include "look/Dress.h"

#include <QtGui/QIcon>
#include <QtWidgets/QApplication>
#include <QtWidgets/QToolTip>

#include "look/Palettes.h"
#include "look/PaperStyle.h"

namespace look {
namespace {

void DressToolTips() {
  QToolTip::setPalette(PaperPalette());
  QFont font = QToolTip::font();
  font.setFamilies({QStringLiteral("Verdana")});
  QToolTip::setFont(font);
}

}  // namespace

void DressTheProgram() {
  QApplication::setStyle(new PaperStyle);
  QApplication::setPalette(PaperPalette());
  DressToolTips();
  QIcon::setThemeName(QStringLiteral("thornquill"));  // there is none: the style's own signs show
}

}  // namespace look
