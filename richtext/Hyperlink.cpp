#include "richtext/Hyperlink.h"

#include <algorithm>
#include <cstddef>

#include "richtext/Limits.h"

namespace richtext {
namespace {

constexpr std::string_view Name = "HYPERLINK";

constexpr bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

bool IsNamed(std::string_view word) {
  return std::equal(word.begin(), word.end(), Name.begin(), Name.end(),
                    [](char a, char b) { return (a & ~0x20) == b; });
}

// Takes an instruction apart: words between blanks, and texts in quotes.
class Words {
 public:
  explicit Words(std::string_view text) : rest_(text) {}

  bool Next() {
    while (!rest_.empty() && IsBlank(rest_.front())) rest_.remove_prefix(1);
    word.clear();
    if (rest_.empty()) return false;
    isSwitch = rest_.front() == '\\';
    if (rest_.front() == '"')
      TakeQuoted();
    else
      TakePlain();
    return true;
  }

  std::string word;
  bool isSwitch = false;  // a backslash and a letter

 private:
  void TakePlain() {
    while (!rest_.empty() && !IsBlank(rest_.front()) && rest_.front() != '"') {
      word += rest_.front();
      rest_.remove_prefix(1);
    }
  }

  // A backslash stands before a quote or another backslash; many forget it in paths.
  void TakeQuoted() {
    rest_.remove_prefix(1);
    for (; !rest_.empty() && rest_.front() != '"'; rest_.remove_prefix(1)) {
      const bool escaped = rest_.size() > 1 && rest_[0] == '\\' && (rest_[1] == '\\' || rest_[1] == '"');
      if (escaped) rest_.remove_prefix(1);
      word += rest_.front();
    }
    if (!rest_.empty()) rest_.remove_prefix(1);
  }

  std::string_view rest_;
};

bool TakesArgument(std::string_view name) {
  return name == "\\o" || name == "\\t" || name == "\\*";
}

}  // namespace

std::string LinkOfInstruction(std::string_view instruction) {
  Words words(instruction);
  if (!words.Next() || !IsNamed(words.word)) return {};
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

}  // namespace richtext
