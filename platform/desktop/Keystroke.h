// Keystrokes sent to the program itself.
#pragma once

#include <QtCore/Qt>

class QWidget;

namespace platform {

// Posts a press and a release of the key to the focus widget of the program's active window and returns at
// once. Without an active window nothing happens.
void SendKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

// The same to a widget, whatever window is active.
void SendKeyTo(QWidget& target, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

}  // namespace platform
