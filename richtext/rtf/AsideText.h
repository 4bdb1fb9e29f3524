// The text of a group that is read for what it tells of the text around it, and is no text of the document.
#pragma once

#include <cstddef>
#include <string>

#include "richtext/rtf/GroupState.h"

namespace richtext::rtf {

// There is one such text at a time: nothing is set aside within what is set aside. It is whole where its
// group ends, and stays until the next one begins, since a group with a twin in it (\upr) ends it twice.
class AsideText {
 public:
  // Whether the text of such a group comes here.
  static bool IsFor(Destination destination) {
    switch (destination) {
      case Destination::Generator:
      case Destination::Label:
      case Destination::FieldInstruction:
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
    return destination == Destination::FieldInstruction || destination == Destination::ShapeName ||
           destination == Destination::ShapeValue || destination == Destination::Generator;
  }

  void Begin() { text_.clear(); }
  std::u16string& Text() { return text_; }
  bool HasRoom() const { return text_.size() < Most; }

 private:
  // Such texts tell little in many words; this is more than any of it needs.
  static constexpr std::size_t Most = 16'384;

  std::u16string text_;
};

}  // namespace richtext::rtf
