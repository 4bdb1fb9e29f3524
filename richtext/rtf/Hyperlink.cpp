#include "richtext/rtf/Hyperlink.h"

#include "richtext/document/Limits.h"
#include "richtext/rtf/FieldWords.h"

namespace richtext::rtf {
namespace {

constexpr std::string_view Name = "HYPERLINK";

bool TakesArgument(std::string_view name) {
  return name == "\\o" || name == "\\t" || name == "\\*";
}

}  // namespace

std::string LinkOfInstruction(std::string_view instruction) {
  FieldWords words(instruction);
  if (!words.Next() || !words.Is(Name)) return {};
  std::string address;
  std::string anchor;
  while (words.Next()) {
    if (!words.isSwitch) {
      if (address.empty()) address = words.word;
    } else if (words.word == "\\l") {
      if (words.Next()) anchor = words.word;
    } else if (TakesArgument(words.word)) {
      words.Next();
    }
  }
  return FittingLink(anchor.empty() ? address : address + '#' + anchor);
}

std::string InstructionOfLink(std::string_view link) {
  std::string instruction(Name);
  instruction += " \"";
  for (const char c : link) {
    if (c == '"' || c == '\\') instruction += '\\';
    instruction += c;
  }
  return instruction + '"';
}

}  // namespace richtext::rtf
