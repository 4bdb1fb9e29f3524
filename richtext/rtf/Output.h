// RTF being written: control words, and text with all that it needs to come back as it is.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace richtext::rtf {

class Output {
 public:
  void Reserve(std::size_t bytes) { rtf_.reserve(bytes); }

  // What is written as it is. It may not end in a control word.
  void Raw(std::string_view rtf);
  // "\name" and its parameter.
  void Word(std::string_view name);
  void Word(std::string_view name, std::int32_t parameter);
  // "\nameN" where N is not 0, which every reader takes for granted.
  void Measure(std::string_view name, std::int32_t value);
  // "\name" or "\name0", where one follows the other.
  void Switch(std::string_view name, bool from, bool to);
  // "{\name" or "{\*\name", whose end is Raw("}").
  void BeginGroup(std::string_view name);
  void BeginIgnorableGroup(std::string_view name);

  // A unit that no document holds becomes U+FFFD, and so does a picture's mark.
  void Text(std::u16string_view text);

  // For what is written by others. They may not end in a control word.
  std::string& Bytes();
  std::string Take() { return std::move(rtf_); }

 private:
  std::size_t Plain(std::u16string_view text);
  void Rare(char16_t unit);
  void Symbol(char symbol);

  std::string rtf_;
  bool afterWord_ = false;  // text would run into the last control word
};

}  // namespace richtext::rtf
