// The segments of a JPEG file (ISO/IEC 10918-1), which stand before its picture.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace pictures::jpeg {

inline constexpr std::string_view StartOfImage("\xFF\xD8", 2);
inline constexpr std::uint8_t StartOfScan = 0xDA;
inline constexpr std::uint8_t Application1 = 0xE1;

struct Segment {
  std::size_t begin = std::string_view::npos;  // of its marker; npos where there is none
  std::string_view content;                    // without marker and length, as far as there are bytes
};

// The first segment with this marker, as far as the segments go on from the file's begin.
Segment FindSegment(std::string_view file, std::uint8_t marker);

// Whether the picture comes to its end: behind its scans, of which there are many in a progressive one, with
// segments between them.
bool HasItsEnd(std::string_view file);

}  // namespace pictures::jpeg
