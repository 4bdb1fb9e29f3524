// How a window comes to the front at the person's own wish. What another program asks for goes another way:
// platform/desktop/BringToFront.h.
#pragma once

class QWidget;

namespace look {

// Shows the window in front of the others, and gives it the keyboard. Where the desktop lets no program do
// that with a window that stands there, it comes anew.
void ShowInFront(QWidget& window);

}  // namespace look
