// The files that hold the words of a journal beside the one of its name in the program's folder: the file
// itself where that name is a symbolic link, and the copies that were kept before it was written over.
#pragma once

#include <string>
#include <vector>

namespace store {

// Their paths; to be asked for while the journal's file is there. The copies are called as the file is, with
// ".damaged", ".1.damaged" and so on behind it, or ".other" in the place of ".damaged".
std::vector<std::string> TracesOf(const std::string& fileName);

// Deletes the files when the journal's row is marked. What is no journal stays, and what is the file of
// another journal of the bookcase. Returns a line for each file that is still there, its path and why.
std::vector<std::string> DeleteTraces(const std::vector<std::string>& paths);

// A line for each log that was put aside (docs/file-formats.md) and has or may have pages of the journal. It
// may have other journals' pages, too, and stays.
std::vector<std::string> LogsWith(const std::string& fileName);

}  // namespace store
