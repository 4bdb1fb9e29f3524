// Photographs as a camera writes them.
#pragma once

#include <string>

namespace fixture {

// A JPEG file with an orientation mark and a small copy of the picture, itself a JPEG file of less than 60
// KB, in an Exif segment.
inline std::string WithSmallCopy(const std::string& jpeg, const std::string& copy, std::size_t mark = 1) {
  const auto number = [](std::size_t value, int size) {
    std::string bytes;
    for (int i = size - 1; i >= 0; --i) bytes += static_cast<char>(value >> 8 * i);
    return bytes;
  };
  const auto entry = [&](std::size_t tag, std::size_t kind, std::size_t value) {
    return number(tag, 2) + number(kind, 2) + number(1, 4) + number(value, 4);
  };
  // A directory of one entry at 8, and one of two at 26, which ends at 56.
  const std::string tiff = "MM" + number(42, 2) + number(8, 4) + number(1, 2) + entry(0x0112, 3, mark << 16) +
                           number(26, 4) + number(2, 2) + entry(0x0201, 4, 56) +
                           entry(0x0202, 4, copy.size()) + number(0, 4) + copy;
  const std::string exif = std::string("Exif\0\0", 6) + tiff;
  return jpeg.substr(0, 2) + "\xFF\xE1" + number(exif.size() + 2, 2) + exif + jpeg.substr(2);
}

}  // namespace fixture
