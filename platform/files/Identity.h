// What tells one state of a file from another.
#pragma once

#include <array>
#include <cstdint>
#include <sys/stat.h>

namespace platform {

// Tells a file from each that another program puts in its place, and from itself when it is changed: its
// device, number and length, and when its bytes and its entry were changed last.
using Identity = std::array<std::int64_t, 7>;
Identity IdentityOf(const struct stat& entry);

}  // namespace platform
