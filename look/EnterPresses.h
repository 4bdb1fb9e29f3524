// Buttons that the toolkit lets the space bar alone press.
#pragma once

#include <QtWidgets/QAbstractButton>

namespace look {

// Enter presses it, too, once for as long as it is held; it goes no further, as to a window's default button.
void LetEnterPress(QAbstractButton& button);

}  // namespace look
