// What is remembered of a data file, for the routines that read and write files.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <sys/stat.h>

namespace platform {

// What tells a file from each that another program puts in its place, and from itself when it is changed.
using Identity = std::array<std::int64_t, 7>;
Identity IdentityOf(const struct stat& entry);

// The file of that path is the one of this entry, and holds what has this checksum, where it was read.
void Remember(const std::string& path, const struct stat& entry, std::optional<std::uint64_t> checksum);

// What Remember was told last of the file of that path. In the window's thread.
std::optional<Identity> KnownIdentity(const std::string& path);

}  // namespace platform
