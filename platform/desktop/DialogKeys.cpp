#include "platform/desktop/DialogKeys.h"

#include <chrono>

#include <QtCore/QTimer>
#include <QtWidgets/QApplication>

namespace platform {
namespace {

// Until the toolkit's own requests are answered.
constexpr std::chrono::milliseconds Settled{300};

// A dialog blocks every window but its own children.
bool Blocks(const QWidget& dialog, const QWidget& window) {
  const QWidget* own = &window;
  while (own && own != &dialog) own = own->parentWidget();
  return !own;
}

void HandOn() {
  QWidget* dialog = QApplication::activeModalWidget();
  const QWidget* active = QApplication::activeWindow();
  if (dialog && dialog->isVisible() && active && Blocks(*dialog, *active)) dialog->activateWindow();
}

}  // namespace

void KeepTheKeysInDialogs() {
  if (!QGuiApplication::platformName().startsWith(QStringLiteral("wayland"))) return;
  auto* settling = new QTimer(qApp);
  settling->setSingleShot(true);
  QObject::connect(settling, &QTimer::timeout, qApp, &HandOn);
  QObject::connect(qApp, &QGuiApplication::focusWindowChanged, settling,
                   [settling] { settling->start(Settled); });
}

}  // namespace platform
