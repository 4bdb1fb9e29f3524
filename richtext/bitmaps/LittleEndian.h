// Numbers in the byte order of Windows' files.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace richtext {

// Bytes beyond the end of `bytes` read as 0, so a caller checks lengths only where they matter.
constexpr std::uint32_t ByteAt(std::string_view bytes, std::size_t at) {
  return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0U;
}
constexpr std::uint32_t UnsignedAt16(std::string_view bytes, std::size_t at) {
  return ByteAt(bytes, at) | ByteAt(bytes, at + 1) << 8;
}
constexpr std::uint32_t UnsignedAt32(std::string_view bytes, std::size_t at) {
  return UnsignedAt16(bytes, at) | UnsignedAt16(bytes, at + 2) << 16;
}
constexpr std::int32_t SignedAt16(std::string_view bytes, std::size_t at) {
  return static_cast<std::int16_t>(UnsignedAt16(bytes, at));
}
constexpr std::int32_t SignedAt32(std::string_view bytes, std::size_t at) {
  return static_cast<std::int32_t>(UnsignedAt32(bytes, at));
}

// The bytes from `at` to the end; none when `at` lies beyond it.
constexpr std::string_view BytesFrom(std::string_view bytes, std::size_t at) {
  return at < bytes.size() ? bytes.substr(at) : std::string_view();
}

}  // namespace richtext
