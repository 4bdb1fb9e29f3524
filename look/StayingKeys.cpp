#include "look/StayingKeys.h"

#include <QtCore/QEvent>
#include <QtWidgets/QApplication>

#include "platform/HeldKeys.h"

namespace look {
namespace {

// Looks at what comes from the display alone, before the toolkit hands it on to a control or an open menu.
class Keeper : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override {
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (!isKey || !receiver->isWindowType()) return false;
    if (window_ != receiver) keys_.Forget();
    window_ = receiver;
    return keys_.BeganElsewhere(*static_cast<QKeyEvent*>(event));
  }

 private:
  platform::HeldKeys keys_;
  const QObject* window_ = nullptr;
};

}  // namespace

void KeepHeldKeysInTheirWindow() {
  [[maybe_unused]] static const bool isKept = (qApp->installEventFilter(new Keeper(qApp)), true);
}

}  // namespace look
