#include "look/Dress.h"

#include <QtGui/QIcon>
#include <QtWidgets/QApplication>

#include "look/Palettes.h"
#include "look/PaperStyle.h"

namespace look {

void DressTheProgram() {
  QApplication::setStyle(new PaperStyle);
  QApplication::setPalette(PaperPalette());
  QIcon::setThemeName(QStringLiteral("thornquill"));  // there is none: the style's own signs show
}

}  // namespace look
