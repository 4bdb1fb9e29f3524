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
  return jpeg::HasItsEnd(platform::ReadFile(path));
}

}  // namespace pictures
