// What a screen reader says beside the names of controls.
#pragma once

#include <QtCore/QString>
#include <QtGui/QAccessible>
#include <QtWidgets/QWidget>

namespace look {

// The control counts as one of that role, whatever the toolkit takes it for. To be called before anything
// else is told of it.
void SpeakAs(QWidget& control, QAccessible::Role role);

// Says what has changed on the screen but not on the control that has the keyboard. The toolkit knows no
// announcements: the text becomes the description of that control, which every screen reader speaks when it
// changes, and stays it until the keyboard goes elsewhere.
void Announce(const QString& text);

}  // namespace look
