// The names in a folder, for the routines of this room.
#pragma once

#include <string>
#include <vector>

namespace platform {

// The names of all entries, in no order; none when the folder cannot be read.
std::vector<std::string> NamesIn(const std::string& folder);

}  // namespace platform
