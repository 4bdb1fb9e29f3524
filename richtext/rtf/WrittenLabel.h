// The label that a writer put before a list's paragraph, for readers who know nothing of lists.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

namespace richtext::rtf {

// A label is read (Begin, Read), then waits until the text of its paragraph begins (TakeWaiting): only there
// is it known whether the paragraph is of a list that makes the label itself. The list that it tells of, if
// any, is the paragraph's until that or its cell ends (TakeList, ForgetList).
class WrittenLabel {
 public:
  // Who wrote \listtext meant a list in any case.
  enum class Kind : std::uint8_t { None, Text, ListText };

  void Begin(Kind kind) { inHand_ = kind; }
  void Read(const std::u16string& text) {
    text_ = text;
    waiting_ = inHand_;
  }
  // Of the label that waits, which then waits no more; None where none does.
  Kind TakeWaiting() { return std::exchange(waiting_, Kind::None); }
  const std::u16string& Text() const { return text_; }

  // Its list, by its number among the numberings; 0 is none.
  void SetList(std::uint32_t list) { list_ = list; }
  bool HasList() const { return list_ != 0; }
  std::uint32_t TakeList() { return std::exchange(list_, 0); }
  void ForgetList() { list_ = 0; }

 private:
  Kind inHand_ = Kind::None;
  Kind waiting_ = Kind::None;
  std::u16string text_;
  std::uint32_t list_ = 0;
};

}  // namespace richtext::rtf
