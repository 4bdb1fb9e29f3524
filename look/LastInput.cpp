#include "look/LastInput.h"

#include <QtCore/QEvent>
#include <QtWidgets/QApplication>

namespace look {
namespace {

bool wasKey = false;

class InputNoter : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* /*receiver*/, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) wasKey = true;
    if (event->type() == QEvent::MouseButtonPress) wasKey = false;
    return false;
  }
};

}  // namespace

void NoteInput() {
  [[maybe_unused]] static const bool isNoted = (qApp->installEventFilter(new InputNoter(qApp)), true);
}

bool WasLastInputAKey() {
  return wasKey;
}

}  // namespace look
