#include "pictures/decoding/WholeJpeg.h"

#include <string_view>

#include "platform/files/InputFile.h"

namespace pictures {
namespace {

constexpr unsigned char StartOfScan = 0xDA;
constexpr std::string_view StartOfImage("\xFF\xD8", 2);
constexpr std::string_view EndOfImage("\xFF\xD9", 2);

unsigned char At(std::string_view bytes, std::size_t index) {
  return static_cast<unsigned char>(bytes[index]);
}

// Behind the segments with their lengths, of which one may hold a small JPEG of its own; npos where they do
// not end.
std::size_t BeginOfTheScan(std::string_view bytes) {
  std::size_t next = StartOfImage.size();
  while (next + 4 <= bytes.size() && At(bytes, next) == 0xFF) {
    const unsigned char marker = At(bytes, next + 1);
    if (marker == StartOfScan) return next;
    next += marker == 0xFF ? 1 : 2U + At(bytes, next + 2) * 256U + At(bytes, next + 3);
  }
  return std::string_view::npos;
}

}  // namespace

bool IsWhole(const std::string& path) {
  {
    char begin[StartOfImage.size()];
    platform::InputFile file(path);
    if (std::string_view(begin, file.Read(begin, sizeof begin)) != StartOfImage) return true;
  }
  const std::string bytes = platform::ReadFile(path);
  const std::size_t scan = BeginOfTheScan(bytes);
  return scan != std::string_view::npos && bytes.find(EndOfImage, scan) != std::string::npos;
}

}  // namespace pictures
