#include "pictures/decoding/Jpeg.h"

namespace pictures::jpeg {
namespace {

constexpr std::uint8_t Prefix = 0xFF;
constexpr std::uint8_t StuffedZero = 0x00;
constexpr std::uint8_t EndOfImage = 0xD9;
constexpr std::size_t MarkerSize = 2;
constexpr std::size_t LengthSize = 2;  // counts itself

std::uint8_t At(std::string_view bytes, std::size_t index) {
  return static_cast<std::uint8_t>(bytes[index]);
}

std::size_t LengthAt(std::string_view bytes, std::size_t index) {
  return At(bytes, index) * std::size_t{256} + At(bytes, index + 1);
}

// Tables, the next scan, and what programs note; not the restarts and the stuffed zeros of a scan itself.
bool StandsBetweenScans(std::uint8_t marker) {
  constexpr std::uint8_t huffman = 0xC4, restarts = 0xDD, comment = 0xFE;
  constexpr std::uint8_t firstNote = 0xE0, lastNote = 0xEF;
  return marker == huffman || (marker >= StartOfScan && marker <= restarts) ||
         (marker >= firstNote && marker <= lastNote) || marker == comment;
}

}  // namespace

Segment FindSegment(std::string_view file, std::uint8_t marker) {
  std::size_t next = StartOfImage.size();
  while (next + MarkerSize + LengthSize <= file.size() && At(file, next) == Prefix) {
    const std::uint8_t found = At(file, next + 1);
    const std::size_t length = LengthAt(file, next + MarkerSize);
    const std::size_t content = next + MarkerSize + LengthSize;
    if (found == marker) return {next, file.substr(content, length > LengthSize ? length - LengthSize : 0)};
    next += found == Prefix ? 1 : MarkerSize + length;
  }
  return {};
}

bool HasItsEnd(std::string_view file) {
  std::size_t next = FindSegment(file, StartOfScan).begin;
  if (next == std::string_view::npos) return false;
  while (next + MarkerSize <= file.size()) {
    const std::uint8_t found = At(file, next) == Prefix ? At(file, next + 1) : StuffedZero;
    if (found == EndOfImage) return true;
    if (!StandsBetweenScans(found))
      ++next;
    else if (next + MarkerSize + LengthSize > file.size())
      return false;
    else
      next += MarkerSize + LengthAt(file, next + MarkerSize);
  }
  return false;
}

}  // namespace pictures::jpeg
