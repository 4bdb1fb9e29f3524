// The files of a folder that match a pattern.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace platform {

// The names (the system's bytes, no folder) of the files that end in one of the endings, such as ".gif",
// without regard to case, in the order of their bytes. Hidden files and folders are left out. Throws
// PathNotFound, PermissionDenied or PathAccess when the folder cannot be read.
std::vector<std::string> ListFiles(const std::string& folder, const std::vector<std::string_view>& endings);

// The files of a folder that match "*.tqf", each in the order of their bytes, without folders and hidden
// ones.
struct JournalFiles {
  std::vector<std::string> names;    // in the code page
  std::vector<std::string> foreign;  // the system's bytes of those that the code page cannot hold
};
JournalFiles ListJournalFiles(const std::string& folder);

}  // namespace platform
