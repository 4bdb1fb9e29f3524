// The files that are being written, those that a killed process left, and those that are kept beside others,
// for the routines of this room.
#pragma once

#include <string>

namespace platform {

// A program holds the lock of the file that it writes, so that another one, of another person or machine,
// leaves it alone; a kill frees it. False when another one holds it. A disk that knows no locks gives every
// one.
bool Lock(int descriptor);

// Removes the entry unless it is locked. Failures are ignored.
void RemoveLeftBehind(const std::string& path);

// Keeps a copy of the file beside it, under its name with a number and the ending behind it; the number 0 is
// left out. The first number is the one from which on no such name is taken, or is taken by this very file.
// Returns the copy's path, when that is on the disk; throws as ReplaceFile does when there can be no copy.
// In the window's thread.
std::string KeepBeside(const std::string& path, const std::string& ending, int number);

// To be called when another file has taken that path: what KeepBeside kept of it, which may have been a
// second name of the very file until now, is for its owner alone from now on. Failures are ignored.
void MakeKeptPrivate(const std::string& path);

}  // namespace platform
