// What a screen reader says beside the names of controls.
#pragma once

#include <QtCore/QString>
#include <QtGui/QAccessible>
#include <QtWidgets/QAbstractItemView>

namespace look {

// The control counts as one of that role, whatever the toolkit takes it for. To be called before anything
// else is told of it; for controls that have nothing but a name. A link can be pressed by a screen reader, as
// by the space bar.
void SpeakAs(QWidget& control, QAccessible::Role role);

// Says what has changed on the screen but not on the control that has the keyboard; where none has it, as
// when a dialog has just gone, when the next one gets it. The toolkit knows no announcements, and with a name
// or a description that changes it sends none of the new words, so that Orca stays silent: the text is that
// of a notification, which nobody sees and which appears now.
void Announce(const QString& text);

// The entry that is chosen is said when the keyboard comes to the list or the tree.
void SpeakCurrentEntry(QAbstractItemView& view);

}  // namespace look
