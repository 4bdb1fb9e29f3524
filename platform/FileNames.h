// The names in a folder, for the routines of this room.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace platform {

// The names of all entries, in no order; none when the folder cannot be read.
std::vector<std::string> NamesIn(const std::string& folder);

// True for a name that matches "*.tqf" and is not hidden.
bool IsJournalFileName(std::string_view name);

}  // namespace platform
