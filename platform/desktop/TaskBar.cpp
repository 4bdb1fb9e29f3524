#include "platform/desktop/TaskBar.h"

#include <QtWidgets/QWidget>

#include "platform/desktop/X11.h"

namespace platform {

void KeepOffTaskBar(QWidget& window) {
  if (xcb_connection_t* x11 = X11OfTheToolkit()) SkipTaskBar(x11, static_cast<xcb_window_t>(window.winId()));
}

}  // namespace platform
