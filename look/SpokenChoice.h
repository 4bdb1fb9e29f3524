// A control of many parts of which a screen reader is told the chosen one alone.
#pragma once

#include <QtCore/QString>
#include <QtWidgets/QWidget>

namespace look {

// The chosen part is called so from now on. It is said when it changes while the control has the keyboard,
// and when the keyboard comes to the control, whose own parts, as the cells of a table, are told no more.
void SpeakChoice(QWidget& control, const QString& choice);

}  // namespace look
