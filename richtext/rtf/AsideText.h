// The text of a group that is read for what it tells of the text around it, and is no text of the document.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>

#include "richtext/rtf/GroupState.h"

namespace richtext::rtf {

// There is one such text at a time: nothing but an instruction is set aside within what is set aside. It is
// whole where its group ends, and stays until the next one begins, since a group with a twin in it (\upr)
// ends it twice.
class AsideText {
 public:
  // Whether the text of such a group comes here.
  static bool IsFor(Destination destination) {
    switch (destination) {
      case Destination::Generator:
      case Destination::Label:
      case Destination::FieldInstruction:
      case Destination::InnerInstruction:
      case Destination::ListLevelText:
      case Destination::NumberingBefore:
      case Destination::NumberingAfter:
      case Destination::ShapeName:
      case Destination::ShapeValue:
        return true;
      default:
        return false;
    }
  }

  // Whether such a text is made of words and not of what a page shows.
  static bool IsWords(Destination destination) {
    return destination == Destination::FieldInstruction || destination == Destination::InnerInstruction ||
           destination == Destination::ShapeName || destination == Destination::ShapeValue ||
           destination == Destination::Generator;
  }

  void Begin() { text_.clear(); }
  // The instruction of a field within that of another one, which goes on behind it.
  void BeginInner() { inner_ = text_.size(); }
  std::u16string TakeInner() {
    std::u16string inner = text_.substr(std::min(inner_, text_.size()));
    text_.resize(text_.size() - inner.size());
    return inner;
  }
  std::u16string& Text() { return text_; }
  bool HasRoom() const { return text_.size() < Most; }

 private:
  // Such texts tell little in many words; this is more than any of it needs.
  static constexpr std::size_t Most = 16'384;

  std::u16string text_;
  std::size_t inner_ = 0;  // where it begins
};

}  // namespace richtext::rtf
