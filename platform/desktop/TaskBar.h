// The desktop's list of windows.
#pragma once

class QWidget;

namespace platform {

// From its next showing on the window has no entry there. Where the desktop has no word for that, nothing
// happens.
void KeepOffTaskBar(QWidget& window);

}  // namespace platform
