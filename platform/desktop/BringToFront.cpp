#include <QtCore/QTimer>
#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include "platform/desktop/RunningInstance.h"
#include "platform/desktop/X11.h"

namespace platform {
namespace {

void Restore(QWidget& window) {
  if (window.isMinimized()) window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  window.raise();
}

void Activate(QWidget& window, const ActivationToken& token) {
  Restore(window);
  if (xcb_connection_t* x11 = X11OfTheToolkit()) {
    ActivateX11Window(x11, static_cast<xcb_window_t>(window.winId()), token.timestamp);
    return;
  }
  // Read by the toolkit's next request for activation, which takes it away again.
  if (QGuiApplication::platformName().startsWith(QStringLiteral("wayland")) && !token.startupId.isEmpty())
    qputenv("XDG_ACTIVATION_TOKEN", token.startupId);
  window.activateWindow();
}

void AskForAttentionIfNeeded(QWidget& window) {
  QTimer::singleShot(RunningInstance::Grace, &window, [&window] {
    if (!QGuiApplication::focusWindow()) QApplication::alert(&window);
  });
}

}  // namespace

void BringToFront(QWidget& window, const ActivationToken& token) {
  Activate(window, token);
  AskForAttentionIfNeeded(window);
  // Only the dialog that holds the window up can be answered, so it is what must be in front.
  QWidget* dialog = QApplication::activeModalWidget();
  if (dialog && dialog != &window && dialog->isVisible()) Activate(*dialog, token);
}

}  // namespace platform
