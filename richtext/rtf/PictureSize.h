// What picture files tell of their size, without the toolkit.
#pragma once

#include <cstdint>
#include <string_view>

namespace richtext::rtf {

// Pixels; 0 for both where the file does not tell them.
struct PixelSize {
  std::int64_t width = 0;
  std::int64_t height = 0;
};

// Of a PNG or JPEG file.
PixelSize SizeOfFile(std::string_view file);

}  // namespace richtext::rtf
