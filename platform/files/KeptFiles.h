// Files that lie beside the data files: damaged ones that are kept, and those that a killed process left.
#pragma once

#include <string>

namespace platform {

// Keeps a copy of the file beside it, under its name with ".damaged" behind it, or with ".1.damaged" and so
// on where that name is taken. A file that was kept and has not been replaced since is not kept twice.
// Returns the copy's path, when that is on the disk; throws FileNotFound, or as ReplaceFile does when there
// can be no copy. The copy is for its owner alone, at the latest when ReplaceDataFile has replaced the file.
std::string KeepDamaged(const std::string& path);

// The path that KeepDamaged would return now.
std::string DamagedCopyOf(const std::string& path);

// Gives the file itself, or whatever has its name, the first such name that is free, and returns it. That
// takes no room on a full disk. A power cut can undo it until the folder is synced
// (platform/files/SyncFolder.h). Throws PermissionDenied, PathNotFound or PathAccess, with nothing changed.
std::string MoveAside(const std::string& path);

// Removes the files that a killed process did not finish. Failures are ignored.
void RemoveUnfinished(const std::string& folder);

}  // namespace platform
