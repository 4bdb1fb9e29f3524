#include "richtext/rtf/SymbolField.h"

#include <charconv>
#include <string>

#include "richtext/characters/SymbolFonts.h"
#include "richtext/rtf/FieldWords.h"

namespace richtext::rtf {
namespace {

constexpr std::int32_t Signs = 0xF000;  // where symbol fonts have theirs

bool HoldsSigns(std::string_view font) {
  return font == "Symbol" || font.find("dings") != std::string_view::npos;
}

std::int32_t NumberOf(std::string_view digits) {
  const bool isHex = digits.starts_with("0x");
  if (isHex) digits.remove_prefix(2);
  std::int32_t number = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), number, isHex ? 16 : 10);
  return number;
}

std::int32_t SignOf(std::int32_t number, const CodePage& page) {
  const std::int32_t around = number & ~0xFF;
  const bool isOfPage = around == 0 || (around == Signs && page.number == SymbolPage);
  return isOfPage ? page.units[static_cast<std::size_t>(number & 0xFF)] : number;
}

}  // namespace

std::int32_t SignOfInstruction(std::string_view instruction) {
  FieldWords words(instruction);
  if (!words.Next() || !words.Is("SYMBOL") || !words.Next()) return 0;
  const std::int32_t number = NumberOf(words.word);
  const CodePage* page = &WesternCodePage();
  while (words.Next()) {
    const bool namesFont = words.word == "\\f";
    const bool hasArgument = namesFont || words.word == "\\s";
    if (hasArgument && words.Next() && namesFont && HoldsSigns(words.word)) page = &SignsOfFont(words.word);
  }
  return number > ' ' && number <= 0xFFFF ? SignOf(number, *page) : 0;
}

std::string_view ButtonOfInstruction(std::string_view instruction) {
  FieldWords words(instruction);
  if (!words.Next() || !words.Is("MACROBUTTON") || !words.Next()) return {};
  const std::size_t begin = words.Rest().find_first_not_of(' ');
  return begin == std::string_view::npos ? std::string_view() : words.Rest().substr(begin);
}

}  // namespace richtext::rtf
