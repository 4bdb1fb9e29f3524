#include "platform/desktop/ClipboardHandOver.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>

#include "platform/desktop/X11.h"

namespace platform {

ClipboardHandOver::ClipboardHandOver(bool isTextAlone) {
  xcb_connection_t* const connection = X11OfTheToolkit();
  if (connection && QGuiApplication::clipboard()->ownsClipboard())
    window_ = AskClipboardManager(connection, isTextAlone);
  if (window_ != 0) qGuiApp->installNativeEventFilter(this);
}

ClipboardHandOver::~ClipboardHandOver() {
  qGuiApp->removeNativeEventFilter(this);
}

bool ClipboardHandOver::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
  if (type != "xcb_generic_event_t") return false;
  const auto& event = *static_cast<const xcb_generic_event_t*>(message);
  if ((event.response_type & 0x7F) != XCB_SELECTION_NOTIFY) return false;
  if (reinterpret_cast<const xcb_selection_notify_event_t&>(event).requestor != window_) return false;
  window_ = 0;
  return true;
}

}  // namespace platform
