// F1: the help about the window that has the keyboard.
#pragma once

#include <QtWidgets/QWidget>

// From now on F1 in any window of the program shows the help. To be called once, by the start.
void AnswerF1();

// Opens THORNQUILL.HLP of the program's folder at the chapter named like the window, or like the nearest of
// its parents that has a chapter; at the beginning where none has. A missing file is told in a message.
void ShowHelp(QWidget* window);
