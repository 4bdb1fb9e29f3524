#include "look/EnterPresses.h"

#include <QtGui/QKeyEvent>

namespace look {
namespace {

class EnterPresses : public QObject {
 public:
  explicit EnterPresses(QAbstractButton& button) : QObject(&button), button_(button) {
    button.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter) return false;
    if (!key.isAutoRepeat()) button_.click();
    return true;
  }

 private:
  QAbstractButton& button_;
};

}  // namespace

void LetEnterPress(QAbstractButton& button) {
  new EnterPresses(button);
}

}  // namespace look
