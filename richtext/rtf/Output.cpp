#include "richtext/rtf/Output.h"

#include <algorithm>

#include "richtext/characters/Unicode.h"
#include "richtext/rtf/Escape.h"

namespace richtext::rtf {

void Output::Raw(std::string_view rtf) {
  rtf_ += rtf;
  afterWord_ = false;
}

std::string& Output::Bytes() {
  afterWord_ = false;
  return rtf_;
}

void Output::Word(std::string_view name) {
  AppendWord(name, rtf_);
  afterWord_ = true;
}

void Output::Word(std::string_view name, std::int32_t parameter) {
  AppendWord(name, parameter, rtf_);
  afterWord_ = true;
}

void Output::Measure(std::string_view name, std::int32_t value) {
  if (value != 0) Word(name, value);
}

void Output::Switch(std::string_view name, bool from, bool to) {
  if (from == to) return;
  if (to) {
    Word(name);
  } else {
    Word(name, 0);
  }
}

void Output::BeginGroup(std::string_view name) {
  rtf_ += '{';
  Word(name);
}

void Output::BeginIgnorableGroup(std::string_view name) {
  rtf_ += "{\\*";
  Word(name);
}

// A surrogate pair never spans two formats.
void Output::Text(std::u16string_view text) {
  while (!text.empty()) {
    text.remove_prefix(Plain(text));
    if (text.empty()) return;
    const bool pair = text.size() > 1 && IsHighSurrogate(text[0]) && IsLowSurrogate(text[1]);
    const std::size_t length = pair ? 2 : 1;
    for (const char16_t unit : text.substr(0, length)) Rare(IsSurrogate(unit) && !pair ? Replacement : unit);
    text.remove_prefix(length);
  }
}

// Writes the beginning that stands for itself, and returns its length.
std::size_t Output::Plain(std::u16string_view text) {
  const auto isPlain = [](char16_t unit) {
    return unit >= u' ' && unit < 0x80 && unit != u'\\' && unit != u'{' && unit != u'}';
  };
  const auto end = std::find_if_not(text.begin(), text.end(), isPlain);
  if (end == text.begin()) return 0;
  if (afterWord_) rtf_ += ' ';
  afterWord_ = false;
  const std::size_t start = rtf_.size();
  const auto length = static_cast<std::size_t>(end - text.begin());
  rtf_.resize(start + length);
  std::transform(text.begin(), end, rtf_.begin() + static_cast<std::ptrdiff_t>(start),
                 [](char16_t unit) { return static_cast<char>(unit); });
  return length;
}

void Output::Rare(char16_t unit) {
  switch (unit) {
    case u'\\':
    case u'{':
    case u'}':
      return Symbol(static_cast<char>(unit));
    case u'\t':
      return Word("tab");
    case LineBreak:
      return Word("line");
    case 0x00A0:
      return Symbol('~');
    case 0x00AD:
      return Symbol('-');
    case 0x2011:
      return Symbol('_');
    default:
      break;
  }
  const bool wrong = unit < u' ' || unit == ParagraphSeparator || unit == PictureMark || IsNoncharacter(unit);
  AppendUnicode(wrong ? Replacement : unit, rtf_);
  afterWord_ = false;
}

void Output::Symbol(char symbol) {
  rtf_ += '\\';
  rtf_ += symbol;
  afterWord_ = false;
}

}  // namespace richtext::rtf
