// What every window wears, whatever the desktop's colours are and however it draws its controls.
#pragma once

namespace look {

// Gives the program PaperPalette, PaperStyle and tool tips of paper, and keeps the desktop's own pictures out
// of its windows. What the desktop changes later changes none of it.
void DressTheProgram();

}  // namespace look
