#include "editor/BindingPicture.h"

#include <QtGui/QGuiApplication>

// Outside every namespace, as the macro asks. Without it the linker leaves the pictures out.
static void BringTheBinding() {
  Q_INIT_RESOURCE(binding);
}

// The one for sharper screens is a PNG, which the toolkit decodes faster than a GIF. By its name the toolkit
// knows its scaling.
QPixmap BindingPicture() {
  BringTheBinding();
  const bool sharp = qGuiApp->devicePixelRatio() > 1;
  return QPixmap(sharp ? QStringLiteral(":/binding/binding@2x.png")
                       : QStringLiteral(":/binding/binding.gif"));
}
