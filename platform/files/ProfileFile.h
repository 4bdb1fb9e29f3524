// Settings in a text file of sections and keys, as the platform's profile files are:
//
//   ; a remark
//   [Section]
//   key=value
//
// Names of sections and keys are compared without regard to case, and blanks around names and values do not
// count. Of several sections or keys of one name the first counts. What a person put there besides, remarks,
// other sections and unknown keys, stays as it is.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace platform {

// No more of a value is ever read.
inline constexpr std::size_t LongestProfileValue = 256;  // characters

// The value of a key in the text of a profile file, without a pair of quotes around it; empty when there is
// no such key.
std::string ProfileValue(std::string_view text, std::string_view section, std::string_view key);

// The text with the key set to the value: in the key's own line, or behind the last line of its section, or
// in a section of its own at the end. All lines of the result end in CR LF.
std::string WithProfileValue(std::string_view text, std::string_view section, std::string_view key,
                             std::string_view value);

// The text of a profile file, which is known then (platform/files/KnownFiles.h); empty when there is no such
// file. Throws platform::Failure when it cannot be read.
std::string ReadProfile(const std::string& path);

}  // namespace platform
