// Cuts RTF into tokens. It knows braces, control words, control symbols and bytes, and nothing of what they
// mean; only \bin is its business, since the bytes after it follow no syntax.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace richtext::rtf {

enum class TokenKind : std::uint8_t {
  End,
  GroupStart,
  GroupEnd,
  Word,    // \name, \nameN
  Symbol,  // a backslash and one character that is no letter, but for the two below
  Hex,     // \'hh
  Text,    // bytes without braces, backslashes and line ends
  Binary,  // \binN and its bytes
};

// Views lie in the tokenizer's input.
struct Token {
  TokenKind kind = TokenKind::End;
  char byte = 0;               // Symbol: the character; Hex: the byte
  bool hasParameter = false;   // Word
  std::int32_t parameter = 0;  // Word: saturated at the ends of its type; 0 when absent
  std::string_view text = {};  // Word: the name; Text, Binary: the bytes
};

class Tokenizer {
 public:
  explicit Tokenizer(std::string_view rtf) : rtf_(rtf) {}

  // The next token; End at the end of the input, as often as it is asked for. Damaged syntax gives what can
  // be made of it: "\'" without two digits and a backslash at the very end are passed over.
  Token Next();

 private:
  Token Text();
  Token Escape();
  Token Hex();
  Token Word();
  void Parameter(Token& word);
  Token Binary(std::int32_t length);
  char At(std::size_t ahead) const { return at_ + ahead < rtf_.size() ? rtf_[at_ + ahead] : '\0'; }

  std::string_view rtf_;
  std::size_t at_ = 0;
};

}  // namespace richtext::rtf
