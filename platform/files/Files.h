// Files of the program's folder.
//
// Paths are the system's own bytes. Names that come out of a data file are Windows-1252 and are turned into
// the system's encoding by PathOf. Every failure is a platform::Failure that names the path.
#pragma once

#include <string>
#include <string_view>

namespace platform {

// The folder that the program's binary lies in, without a separator at its end.
std::string ProgramFolder();
// The seam: another folder in its place; an empty path restores the real one.
void SetProgramFolder(std::string folder);

// The path of a file of the program's folder. `name` is Windows-1252 and holds no separator.
std::string PathOf(std::string_view name);

// True for an existing entry that is not a folder.
bool FileExists(const std::string& path);
// True when the folder has no entry of that name, of any kind. An entry that cannot be looked at is not
// missing.
bool IsMissing(const std::string& path);

// Throws when the file exists and cannot be deleted; a missing file is no failure. A power cut can bring it
// back until its folder is synced (platform/files/SyncFolder.h).
void DeleteFile(const std::string& path);

}  // namespace platform
