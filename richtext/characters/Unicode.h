// UTF-8 and UTF-16, and which characters a document's text can hold.
#pragma once

#include <string>
#include <string_view>

namespace richtext {

constexpr char16_t Replacement = 0xFFFD;
constexpr char16_t PictureMark = 0xFFFC;
constexpr char16_t LineBreak = 0x2028;
constexpr char16_t ParagraphSeparator = 0x2029;

constexpr bool IsHighSurrogate(char16_t unit) {
  return (unit & 0xFC00) == 0xD800;
}
constexpr bool IsLowSurrogate(char16_t unit) {
  return (unit & 0xFC00) == 0xDC00;
}
constexpr bool IsSurrogate(char16_t unit) {
  return (unit & 0xF800) == 0xD800;
}

// Code points that stand for nothing and that toolkits use as marks of their own.
constexpr bool IsNoncharacter(char32_t code) {
  return (code >= 0xFDD0 && code <= 0xFDEF) || (code & 0xFFFE) == 0xFFFE;
}

// Adds `code` in one or two units; what is no character adds U+FFFD.
void AppendCodePoint(char32_t code, std::u16string& out);

// Damaged input gives U+FFFD where it is damaged.
std::string ToUtf8(std::u16string_view text);
std::u16string ToUtf16(std::string_view utf8);

}  // namespace richtext
