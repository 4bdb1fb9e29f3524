// What is told of a file that another program has put in the place of a data file (files/KnownFiles.h).
#pragma once

#include <string>

namespace platform {

// Tells in a message, once, of the copy that KeepChanged made of the file, if it made one; to be called when
// the file has been written. `describe` is given the copy's path and returns a sentence on what is in it, and
// how a person can look into it, or nothing.
void TellKept(const std::string& path, std::string (*describe)(const std::string& kept) = nullptr);

}  // namespace platform
