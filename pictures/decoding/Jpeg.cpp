#include "pictures/decoding/Jpeg.h"

namespace pictures::jpeg {
namespace {

constexpr std::uint8_t Prefix = 0xFF;
constexpr std::size_t MarkerSize = 2;
constexpr std::size_t LengthSize = 2;  // counts itself

std::uint8_t At(std::string_view bytes, std::size_t index) {
  return static_cast<std::uint8_t>(bytes[index]);
}

}  // namespace

Segment FindSegment(std::string_view file, std::uint8_t marker) {
  std::size_t next = StartOfImage.size();
  while (next + MarkerSize + LengthSize <= file.size() && At(file, next) == Prefix) {
    const std::uint8_t found = At(file, next + 1);
    const std::size_t length = At(file, next + 2) * std::size_t{256} + At(file, next + 3);
    const std::size_t content = next + MarkerSize + LengthSize;
    if (found == marker) return {next, file.substr(content, length > LengthSize ? length - LengthSize : 0)};
    next += found == Prefix ? 1 : MarkerSize + length;
  }
  return {};
}

}  // namespace pictures::jpeg
