#include "look/InFront.h"

#include <QtGui/QGuiApplication>
#include <QtWidgets/QWidget>

namespace look {
namespace {

// On Wayland a program cannot raise its windows, and only a new one gets the keyboard.
bool CanOnlyComeAnew(const QWidget& window) {
  const bool wayland = QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
  return wayland && window.isVisible() && !window.isActiveWindow();
}

}  // namespace

void ShowInFront(QWidget& window) {
  if (CanOnlyComeAnew(window)) window.hide();
  window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  window.show();
  window.raise();
  window.activateWindow();
}

}  // namespace look
