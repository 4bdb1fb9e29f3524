// How a message box looks: the diary's own signs, and no others, and room around the text.
#pragma once

#include <QtWidgets/QMessageBox>

namespace platform {

// Before the box gets its icon.
void DrawOwnSigns(QMessageBox& box);
// Once it has everything that it will have.
void GiveRoom(QMessageBox& box);

}  // namespace platform
