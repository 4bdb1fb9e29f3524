#include "richtext/rtf/Escape.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>

namespace richtext::rtf {
namespace {

constexpr std::array<std::array<char, 2>, 256> PairTable() {
  constexpr char digits[] = "0123456789abcdef";
  std::array<std::array<char, 2>, 256> pairs{};
  for (std::size_t byte = 0; byte < pairs.size(); ++byte)
    pairs[byte] = {digits[byte / 16], digits[byte % 16]};
  return pairs;
}
constexpr auto HexPairs = PairTable();
constexpr std::size_t BytesInLine = 64;

void AppendNumber(std::int32_t number, std::string& rtf) {
  char digits[12];
  const auto end = std::to_chars(digits, digits + sizeof digits, number);
  rtf.append(digits, end.ptr);
}

}  // namespace

void AppendWord(std::string_view name, std::string& rtf) {
  rtf += '\\';
  rtf += name;
}

void AppendWord(std::string_view name, std::int32_t parameter, std::string& rtf) {
  AppendWord(name, rtf);
  AppendNumber(parameter, rtf);
}

// The parameter is a signed 16-bit number, as the oldest readers know it. Without the blank, some readers
// take the sign that stands for the character and the letter behind that.
void AppendUnicode(char16_t unit, std::string& rtf) {
  AppendWord("u", static_cast<std::int16_t>(unit), rtf);
  rtf += " ?";
}

void AppendHexByte(char byte, std::string& rtf) {
  rtf += "\\'";
  rtf.append(HexPairs[static_cast<unsigned char>(byte)].data(), 2);
}

void AppendNameUnit(char16_t unit, std::string& rtf) {
  if (unit >= 0x80) return AppendUnicode(unit, rtf);
  const bool syntax = unit == u';' || unit == u'\\' || unit == u'{' || unit == u'}';
  if (syntax) return AppendHexByte(static_cast<char>(unit), rtf);
  rtf += static_cast<char>(unit);
}

void AppendHexLines(std::string_view bytes, std::string& rtf) {
  const std::size_t start = rtf.size();
  const std::size_t breaks = bytes.empty() ? 0 : (bytes.size() - 1) / BytesInLine;
  rtf.resize(start + 2 * (bytes.size() + breaks));
  char* to = rtf.data() + start;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (i != 0 && i % BytesInLine == 0) to = std::copy_n("\r\n", 2, to);
    to = std::copy_n(HexPairs[static_cast<unsigned char>(bytes[i])].data(), 2, to);
  }
}

}  // namespace richtext::rtf
