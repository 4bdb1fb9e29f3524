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

bool IsOnWayland() {
  return QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}

// The toolkit's request for activation reads the token there. What takes none must not leave it to the
// programs that this one starts.
void ActivateOnWayland(QWidget& window, const ActivationToken& token) {
  if (!token.startupId.isEmpty()) qputenv("XDG_ACTIVATION_TOKEN", token.startupId);
  window.activateWindow();
  qunsetenv("XDG_ACTIVATION_TOKEN");
}

void Activate(QWidget& window, const ActivationToken& token) {
  Restore(window);
  if (IsOnWayland()) return ActivateOnWayland(window, token);
  if (xcb_connection_t* x11 = X11OfTheToolkit())
    return ActivateX11Window(x11, static_cast<xcb_window_t>(window.winId()), token.timestamp);
  window.activateWindow();
}

void AskForAttentionIfNeeded(QWidget& window) {
  QTimer::singleShot(RunningInstance::Grace, &window, [&window] {
    if (!QGuiApplication::focusWindow()) QApplication::alert(&window);
  });
}

}  // namespace

void BringToFront(QWidget& window, const ActivationToken& token) {
  AskForAttentionIfNeeded(window);
  // Only the dialog that holds the window up can be answered, so it is what must be in front.
  QWidget* dialog = QApplication::activeModalWidget();
  const bool hasDialog = dialog && dialog != &window && dialog->isVisible();
  if (hasDialog && IsOnWayland())
    Restore(window);  // a token is good for one window
  else
    Activate(window, token);
  if (hasDialog) Activate(*dialog, token);
}

}  // namespace platform
