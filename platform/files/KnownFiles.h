// The data files as this program last read or wrote them, so that what another program has put in their place
// meanwhile, as those do that keep a folder the same on two machines, is never written over unseen.
//
// InputFile::Remember, ReadDataFile and ReplaceDataFile make a file known, all in the window's thread. It
// stays so through a change of its times or a copy of the same bytes in its place: where the system's entry
// has changed, what the file holds is compared.
#pragma once

#include <string>

namespace platform {

// To be called before a data file is written. Whether another program has changed the file, or has made it:
// then it is kept beside, under its name with ".1.other" behind it, or ".2.other" and so on where that name
// is taken, and counts as known. A missing file is none. Throws as ReplaceFile does when it cannot be read or
// kept, with all files as they were.
bool KeepChanged(const std::string& path);

// Whether the file is the very one that was last read or written here, by the system's entry alone.
bool IsAsKnown(const std::string& path);

// The path of a copy that KeepChanged made of the file, each once; empty where none is left to be told of.
std::string TakeKept(const std::string& path);

// Makes the file known as it lies there, unread.
void AcceptUnread(const std::string& path);

}  // namespace platform
