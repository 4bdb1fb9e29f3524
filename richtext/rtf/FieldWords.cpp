#include "richtext/rtf/FieldWords.h"

#include <algorithm>

namespace richtext::rtf {
namespace {

constexpr bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

}  // namespace

bool FieldWords::Next() {
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

bool FieldWords::Is(std::string_view name) const {
  return std::equal(word.begin(), word.end(), name.begin(), name.end(),
                    [](char a, char b) { return (a & ~0x20) == b; });
}

void FieldWords::TakePlain() {
  while (!rest_.empty() && !IsBlank(rest_.front()) && rest_.front() != '"') {
    word += rest_.front();
    rest_.remove_prefix(1);
  }
}

// A backslash stands before a quote or another backslash; many forget it in paths.
void FieldWords::TakeQuoted() {
  rest_.remove_prefix(1);
  for (; !rest_.empty() && rest_.front() != '"'; rest_.remove_prefix(1)) {
    const bool escaped = rest_.size() > 1 && rest_[0] == '\\' && (rest_[1] == '\\' || rest_[1] == '"');
    if (escaped) rest_.remove_prefix(1);
    word += rest_.front();
  }
  if (!rest_.empty()) rest_.remove_prefix(1);
}

}  // namespace richtext::rtf
