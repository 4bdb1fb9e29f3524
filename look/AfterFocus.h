// What is to follow the keyboard's coming to a control, when the toolkit has told of it.
#pragma once

#include <functional>

#include <QtWidgets/QWidget>

namespace look {

// It is called each time, as long as the control is there.
void AfterFocusComes(QWidget& control, std::function<void()> then);

}  // namespace look
