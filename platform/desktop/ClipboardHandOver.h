// What was copied goes with the program that offers it, unless the desktop's clipboard manager has taken it
// over.
#pragma once

#include <cstdint>

#include <QtCore/QAbstractNativeEventFilter>

namespace platform {

// Asks the manager of an X server to take what the toolkit offers: text, and if it is to also rich text and
// pictures; not markup, which may take long to make. The toolkit answers the manager's questions from the
// event loop, which must be served until this is over. On other displays there is nobody to ask.
class ClipboardHandOver : private QAbstractNativeEventFilter {
 public:
  explicit ClipboardHandOver(bool isTextAlone = false);
  ~ClipboardHandOver() override;
  Q_DISABLE_COPY_MOVE(ClipboardHandOver)

  // The manager has answered, or there is none, or nothing to take.
  bool IsOver() const { return window_ == 0; }

 private:
  bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

  std::uint32_t window_ = 0;  // of ours, to which the answer comes
};

}  // namespace platform
