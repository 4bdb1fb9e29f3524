// What tells whether bytes are still the same ones.
#pragma once

#include <cstdint>
#include <string_view>

namespace store {

// The length of a file, or of a page's body, in bytes, and the CRC-32 of what it held: the one of IEEE 802.3,
// of PNG and of zip.
struct FileCheck {
  std::uint64_t size = 0;
  std::uint32_t crc = 0;

  bool operator==(const FileCheck&) const = default;
};

// Takes less than a millisecond for each megabyte.
FileCheck CheckOf(std::string_view bytes);

// The CRC-32 alone.
std::uint32_t Crc32(std::string_view bytes);

}  // namespace store
