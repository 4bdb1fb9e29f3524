// Hexadecimal digits, as RTF writes bytes.
#pragma once

#include <array>
#include <cstdint>

namespace richtext::rtf {

namespace detail {
constexpr std::array<std::int8_t, 256> HexDigitTable() {
  std::array<std::int8_t, 256> table{};
  table.fill(-1);
  for (std::uint8_t i = 0; i < 10; ++i) table['0' + i] = static_cast<std::int8_t>(i);
  for (std::uint8_t i = 0; i < 6; ++i) table['a' + i] = table['A' + i] = static_cast<std::int8_t>(10 + i);
  return table;
}
inline constexpr std::array<std::int8_t, 256> HexDigitValues = HexDigitTable();
}  // namespace detail

// 0 to 15; -1 when `c` is no digit, in either case of letters.
constexpr int HexDigit(char c) {
  return detail::HexDigitValues[static_cast<unsigned char>(c)];
}

}  // namespace richtext::rtf
