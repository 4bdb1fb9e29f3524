#include "platform/desktop/PopupEscape.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>

namespace platform {
namespace {

// One stroke has one time, whichever events are made of it.
class EscapeFilter : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* /*receiver*/, QEvent* event) override {
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress) return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (key.key() != Qt::Key_Escape) return false;
    if (QApplication::activePopupWidget()) {
      strokeInPopup_ = key.timestamp();
      return false;
    }
    return event->type() == QEvent::KeyPress && key.timestamp() != 0 && key.timestamp() == strokeInPopup_;
  }

 private:
  quint64 strokeInPopup_ = 0;  // milliseconds of the display system's clock
};

}  // namespace

void KeepEscapeToPopups() {
  qApp->installEventFilter(new EscapeFilter(qApp));
}

}  // namespace platform
