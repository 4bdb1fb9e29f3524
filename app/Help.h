// F1: the help about the window that has the keyboard.
#pragma once

// From now on F1 in any window of the program shows THORNQUILL.HLP of the program's folder, at the chapter of
// that window. A missing file is told in a message. To be called once, by the start.
void AnswerF1();
