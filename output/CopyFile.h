// Copying one file.
#pragma once

#include <string>

// Copies the file's bytes to the start of the target, which is created where it is missing. An existing
// target that is longer keeps its tail. Returns true.
//
// What fails is told in a box and, when that has been answered, tried again, and so on until it succeeds: the
// person can make room on the disk, or put the file in its place, meanwhile. A wish to leave the program ends
// that: then the failure is thrown.
bool CopyFile(const std::string& source, const std::string& target);
