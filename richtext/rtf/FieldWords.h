// The instruction of a field, word by word.
#pragma once

#include <string>
#include <string_view>

namespace richtext::rtf {

// Takes an instruction apart: words between blanks, and texts in quotes.
class FieldWords {
 public:
  explicit FieldWords(std::string_view text) : rest_(text) {}

  // Goes to the next word; false, with an empty one, where there is none.
  bool Next();
  // Whether the word is this name, which is in capitals; letters count in any case.
  bool Is(std::string_view name) const;
  // What follows the word, as it stands there.
  std::string_view Rest() const { return rest_; }

  std::string word;
  bool isSwitch = false;  // a backslash and a letter

 private:
  void TakePlain();
  void TakeQuoted();

  std::string_view rest_;
};

}  // namespace richtext::rtf
