// Photographs whose copying was broken off.
#pragma once

#include <string>

namespace pictures {

// False for a JPEG file (ISO/IEC 10918-1) that ends before its picture does: the toolkit shows that as far as
// it goes, and says nothing. True for every other file. Throws platform::Failure when it cannot be read.
bool IsWhole(const std::string& path);

}  // namespace pictures
