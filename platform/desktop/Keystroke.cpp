#include "platform/desktop/Keystroke.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace platform {

void SendKey(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QWidget* window = QApplication::activeWindow();
  if (!window) return;
  SendKeyTo(window->focusWidget() ? *window->focusWidget() : *window, key, modifiers);
}

void SendKeyTo(QWidget& target, Qt::Key key, Qt::KeyboardModifiers modifiers) {
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
    QCoreApplication::postEvent(&target, new QKeyEvent(type, key, modifiers));
}

}  // namespace platform
