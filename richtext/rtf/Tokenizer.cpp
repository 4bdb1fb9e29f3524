#include "richtext/rtf/Tokenizer.h"

#include <array>
#include <limits>

#include "richtext/rtf/HexDigits.h"

namespace richtext::rtf {
namespace {

constexpr std::array<bool, 256> SyntaxBytes() {
  std::array<bool, 256> table{};
  for (const char byte : {'\\', '{', '}', '\r', '\n'}) table[static_cast<unsigned char>(byte)] = true;
  return table;
}

constexpr std::array<bool, 256> IsSyntax = SyntaxBytes();

constexpr bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
constexpr bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

std::int32_t Saturated(std::int64_t value) {
  using Limits = std::numeric_limits<std::int32_t>;
  if (value > Limits::max()) return Limits::max();
  if (value < Limits::min()) return Limits::min();
  return static_cast<std::int32_t>(value);
}

}  // namespace

Token Tokenizer::Next() {
  while (at_ < rtf_.size()) {
    switch (rtf_[at_]) {
      case '\r':
      case '\n':
        ++at_;
        continue;
      case '{':
        ++at_;
        return {.kind = TokenKind::GroupStart};
      case '}':
        ++at_;
        return {.kind = TokenKind::GroupEnd};
      case '\\': {
        ++at_;
        const Token token = Escape();
        if (token.kind == TokenKind::End) continue;
        return token;
      }
      default:
        return Text();
    }
  }
  return {};
}

Token Tokenizer::Text() {
  const std::size_t start = at_;
  while (at_ < rtf_.size() && !IsSyntax[static_cast<unsigned char>(rtf_[at_])]) ++at_;
  return {.kind = TokenKind::Text, .text = rtf_.substr(start, at_ - start)};
}

// What follows a backslash. End: nothing that can be used.
Token Tokenizer::Escape() {
  if (at_ == rtf_.size()) return {};
  const char first = rtf_[at_];
  if (IsLetter(first)) return Word();
  ++at_;
  if (first == '\'') return Hex();
  return {.kind = TokenKind::Symbol, .byte = first};
}

// Without two digits only the "\'" is lost: what follows it may be a person's text.
Token Tokenizer::Hex() {
  const int high = HexDigit(At(0));
  const int low = HexDigit(At(1));
  if (high < 0 || low < 0) return {};
  at_ += 2;
  return {.kind = TokenKind::Hex, .byte = static_cast<char>(high * 16 + low)};
}

Token Tokenizer::Word() {
  const std::size_t start = at_;
  while (at_ < rtf_.size() && IsLetter(rtf_[at_])) ++at_;
  Token word{.kind = TokenKind::Word, .text = rtf_.substr(start, at_ - start)};
  Parameter(word);
  if (At(0) == ' ') ++at_;
  return word.text == "bin" ? Binary(word.parameter) : word;
}

void Tokenizer::Parameter(Token& word) {
  const bool negative = At(0) == '-';
  const std::size_t sign = negative ? 1 : 0;
  if (!IsDigit(At(sign))) return;
  at_ += sign;
  std::int64_t value = 0;
  for (; IsDigit(At(0)); ++at_)
    if (value <= std::numeric_limits<std::int32_t>::max()) value = value * 10 + (rtf_[at_] - '0');
  word.hasParameter = true;
  word.parameter = Saturated(negative ? -value : value);
}

// A length that the input cannot hold is a lie, and swallowing the rest for it would lose the text.
Token Tokenizer::Binary(std::int32_t length) {
  const std::size_t left = rtf_.size() - at_;
  const bool fits = length > 0 && static_cast<std::size_t>(length) <= left;
  const std::string_view bytes = rtf_.substr(at_, fits ? static_cast<std::size_t>(length) : 0);
  at_ += bytes.size();
  return {.kind = TokenKind::Binary, .text = bytes};
}

}  // namespace richtext::rtf
