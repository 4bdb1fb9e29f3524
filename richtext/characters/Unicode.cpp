#include "richtext/characters/Unicode.h"

#include <cstddef>

namespace richtext {
namespace {

constexpr char32_t LastCodePoint = 0x10FFFF;

char32_t Combined(char16_t high, char16_t low) {
  return 0x10000 + ((char32_t{high} & 0x3FF) << 10) + (low & 0x3FFU);
}

// The code point at `at`, which moves past it.
char32_t NextCodePoint(std::u16string_view text, std::size_t& at) {
  const char16_t unit = text[at++];
  if (!IsSurrogate(unit)) return unit;
  if (IsHighSurrogate(unit) && at < text.size() && IsLowSurrogate(text[at]))
    return Combined(unit, text[at++]);
  return Replacement;
}

void AppendUtf8(char32_t code, std::string& out) {
  const auto tail = [code](int shift) { return static_cast<char>(0x80 | ((code >> shift) & 0x3F)); };
  if (code < 0x80) {
    out += static_cast<char>(code);
  } else if (code < 0x800) {
    out += {static_cast<char>(0xC0 | (code >> 6)), tail(0)};
  } else if (code < 0x10000) {
    out += {static_cast<char>(0xE0 | (code >> 12)), tail(6), tail(0)};
  } else {
    out += {static_cast<char>(0xF0 | (code >> 18)), tail(12), tail(6), tail(0)};
  }
}

struct Utf8Lead {
  int tails;
  char32_t bits;
  char32_t smallest;  // a longer form than needed is damage
};

Utf8Lead LeadOf(unsigned char byte) {
  if (byte < 0x80) return {0, byte, 0};
  if (byte >= 0xC0 && byte < 0xE0) return {1, byte & 0x1FU, 0x80};
  if (byte >= 0xE0 && byte < 0xF0) return {2, byte & 0x0FU, 0x800};
  if (byte >= 0xF0 && byte < 0xF8) return {3, byte & 0x07U, 0x10000};
  return {0, Replacement, 0};
}

char32_t NextCodePoint(std::string_view utf8, std::size_t& at) {
  const Utf8Lead lead = LeadOf(static_cast<unsigned char>(utf8[at++]));
  char32_t code = lead.bits;
  for (int i = 0; i < lead.tails; ++i) {
    if (at == utf8.size() || (static_cast<unsigned char>(utf8[at]) & 0xC0) != 0x80) return Replacement;
    code = (code << 6) | (static_cast<unsigned char>(utf8[at++]) & 0x3F);
  }
  return code < lead.smallest ? char32_t{Replacement} : code;
}

}  // namespace

void AppendCodePoint(char32_t code, std::u16string& out) {
  const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
  if (surrogate || code > LastCodePoint || IsNoncharacter(code)) code = Replacement;
  if (code < 0x10000) {
    out += static_cast<char16_t>(code);
  } else {
    out += static_cast<char16_t>(0xD7C0 + (code >> 10));
    out += static_cast<char16_t>(0xDC00 + (code & 0x3FF));
  }
}

std::string ToUtf8(std::u16string_view text) {
  std::string out;
  for (std::size_t at = 0; at < text.size();) AppendUtf8(NextCodePoint(text, at), out);
  return out;
}

std::u16string ToUtf16(std::string_view utf8) {
  std::u16string out;
  for (std::size_t at = 0; at < utf8.size();) AppendCodePoint(NextCodePoint(utf8, at), out);
  return out;
}

}  // namespace richtext
