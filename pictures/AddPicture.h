// The way to a new picture from outside the dialog.
#pragma once

#include <string>

// Asks for a file and opens frmAddPicture on it. A page that has its seven pictures, and a file that cannot
// be shown, are told in a message instead. Cancelling changes nothing.
void StartAddPicture();

// The same for a file that is known already, of the system's bytes.
void AddPicture(const std::string& path);
