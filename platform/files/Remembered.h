// What is remembered of a data file, for the routines that read and write files.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <sys/stat.h>

#include "platform/files/Identity.h"

namespace platform {

// The file of that path is the one of this entry, and holds what has this checksum, where it was read.
void Remember(const std::string& path, const struct stat& entry, std::optional<std::uint64_t> checksum);

// What Remember was told last of the file of that path. In the window's thread.
std::optional<Identity> KnownIdentity(const std::string& path);

}  // namespace platform
