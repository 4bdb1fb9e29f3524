#include "platform/HeldKeys.h"

namespace platform {
namespace {

// The same for as long as the key is down, whatever Shift makes of it meanwhile.
quint32 NameOf(const QKeyEvent& event) {
  return event.nativeScanCode() ? event.nativeScanCode() : static_cast<quint32>(event.key());
}

}  // namespace

bool HeldKeys::BeganElsewhere(const QKeyEvent& event) {
  const quint32 key = NameOf(event);
  if (event.isAutoRepeat()) return !down_.contains(key);
  if (event.type() == QEvent::KeyRelease) {
    last_ = {key, event.timestamp(), down_.remove(key)};
    return false;
  }
  if (Repeats(event) && !last_.wasDown) return true;
  down_.insert(key);
  return false;
}

// X11 lets a held key come up and go down again in the same moment, which the toolkit takes for a repetition
// only where it has got both at once.
bool HeldKeys::Repeats(const QKeyEvent& press) const {
  return last_.time != 0 && last_.time == press.timestamp() && last_.key == NameOf(press);
}

void HeldKeys::Forget() {
  down_.clear();
  last_.wasDown = false;
}

}  // namespace platform
