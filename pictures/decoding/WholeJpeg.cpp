#include "pictures/decoding/WholeJpeg.h"

#include <string_view>

#include "pictures/decoding/Jpeg.h"
#include "platform/files/InputFile.h"

namespace pictures {

bool IsWhole(const std::string& path) {
  {
    char begin[jpeg::StartOfImage.size()];
    platform::InputFile file(path);
    if (std::string_view(begin, file.Read(begin, sizeof begin)) != jpeg::StartOfImage) return true;
  }
  const std::string bytes = platform::ReadFile(path);
  // Segments before the scan may hold a small JPEG of its own, with its end.
  const std::size_t scan = jpeg::FindSegment(bytes, jpeg::StartOfScan).begin;
  return scan != std::string_view::npos && bytes.find(jpeg::EndOfImage, scan) != std::string::npos;
}

}  // namespace pictures
