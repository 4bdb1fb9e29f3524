#include "richtext/rtf/PictureSize.h"

#include <cstddef>

namespace richtext::rtf {
namespace {

// The number that the bytes at a place make, the highest first; the file must have them.
std::int64_t NumberAt(std::string_view file, std::size_t at, std::size_t bytes) {
  std::int64_t number = 0;
  for (const char byte : file.substr(at, bytes)) number = number << 8 | static_cast<unsigned char>(byte);
  return number;
}

PixelSize Known(PixelSize size) {
  return size.width > 0 && size.height > 0 ? size : PixelSize();
}

PixelSize SizeOfPng(std::string_view file) {
  if (file.size() < 24 || file.substr(12, 4) != "IHDR") return {};
  return Known({NumberAt(file, 16, 4), NumberAt(file, 20, 4)});
}

// Markers C0 to CF begin a frame, but for three that begin tables.
constexpr bool BeginsFrame(std::int64_t marker) {
  return (marker & 0xF0) == 0xC0 && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

PixelSize SizeOfJpeg(std::string_view file) {
  for (std::size_t at = 2; at + 9 <= file.size() && file[at] == '\xFF';) {
    const std::int64_t marker = NumberAt(file, at + 1, 1);
    if (BeginsFrame(marker)) return Known({NumberAt(file, at + 7, 2), NumberAt(file, at + 5, 2)});
    at += marker == 0xFF ? 1 : 2 + static_cast<std::size_t>(NumberAt(file, at + 2, 2));
  }
  return {};
}

}  // namespace

PixelSize SizeOfFile(std::string_view file) {
  if (file.starts_with("\x89PNG")) return SizeOfPng(file);
  return file.starts_with("\xFF\xD8") ? SizeOfJpeg(file) : PixelSize();
}

}  // namespace richtext::rtf
