#include "look/AfterFocus.h"

#include <utility>

#include <QtCore/QEvent>

namespace look {
namespace {

class Follower : public QObject {
 public:
  Follower(QWidget& control, std::function<void()> then) : QObject(&control), then_(std::move(then)) {
    control.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::FocusIn)
      QMetaObject::invokeMethod(
          this, [this] { then_(); }, Qt::QueuedConnection);
    return false;
  }

 private:
  const std::function<void()> then_;
};

}  // namespace

void AfterFocusComes(QWidget& control, std::function<void()> then) {
  new Follower(control, std::move(then));
}

}  // namespace look
