// The files that are being written, and those that a killed process left, for the routines of this room.
#pragma once

#include <string>

namespace platform {

// A program holds the lock of the file that it writes, so that another one, of another person or machine,
// leaves it alone; a kill frees it. False when another one holds it. A disk that knows no locks gives every
// one.
bool Lock(int descriptor);

// Removes the entry unless it is locked. Failures are ignored.
void RemoveLeftBehind(const std::string& path);

}  // namespace platform
