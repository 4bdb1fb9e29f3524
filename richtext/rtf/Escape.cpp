#include "richtext/rtf/Escape.h"

#include <charconv>
#include <cstddef>

namespace richtext::rtf {
namespace {

constexpr char HexDigits[] = "0123456789abcdef";
constexpr std::size_t BytesInLine = 64;

void AppendNumber(std::int32_t number, std::string& rtf) {
  char digits[12];
  const auto end = std::to_chars(digits, digits + sizeof digits, number);
  rtf.append(digits, end.ptr);
}

void AppendHexByte(unsigned char byte, std::string& rtf) {
  rtf += HexDigits[byte >> 4];
  rtf += HexDigits[byte & 15];
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

// The parameter is a signed 16-bit number, as the oldest readers know it.
void AppendUnicode(char16_t unit, std::string& rtf) {
  AppendWord("u", static_cast<std::int16_t>(unit), rtf);
  rtf += '?';
}

void AppendNameUnit(char16_t unit, std::string& rtf) {
  if (unit >= 0x80) return AppendUnicode(unit, rtf);
  const bool syntax = unit == u';' || unit == u'\\' || unit == u'{' || unit == u'}';
  if (!syntax) {
    rtf += static_cast<char>(unit);
    return;
  }
  rtf += "\\'";
  AppendHexByte(static_cast<unsigned char>(unit), rtf);
}

void AppendHexLines(std::string_view bytes, std::string& rtf) {
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (i != 0 && i % BytesInLine == 0) rtf += "\r\n";
    AppendHexByte(static_cast<unsigned char>(bytes[i]), rtf);
  }
}

}  // namespace richtext::rtf
