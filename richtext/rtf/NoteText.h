// The text of a footnote, which a page has where the note's mark stands: small, and in brackets. It is a part
// of the paragraph around it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace richtext::rtf {

class NoteText {
 public:
  // Text within a note is no larger.
  static constexpr std::int32_t MostHalfPoints = 16;

  // The group in force, at this depth, is a note.
  void Begin(std::size_t depth) {
    depth_ = depth;
    state_ = State::Empty;
  }
  bool IsOpen() const { return depth_ != 0; }
  // Whether a note ends with the group of this depth.
  bool EndsAt(std::size_t depth) const { return IsOpen() && depth == depth_; }
  // Text of it has come, so that a bracket closes it.
  bool HasText() const { return state_ != State::Empty; }
  void End() { depth_ = 0; }

  // Text comes: what stands before it goes to `text`.
  void BeginText(std::u16string& text) {
    if (!IsOpen()) return;
    if (state_ != State::HasText) text += state_ == State::Empty ? u'[' : u' ';
    state_ = State::HasText;
  }
  // Blanks before the text only part it from the note's number.
  bool PassesBlanks() const { return IsOpen() && !HasText(); }
  std::string_view WithoutBlanks(std::string_view bytes) const {
    return PassesBlanks() ? bytes.substr(std::min(bytes.find_first_not_of(' '), bytes.size())) : bytes;
  }
  // A paragraph of the note ends.
  void EndParagraph() {
    if (state_ == State::HasText) state_ = State::HasGap;
  }

 private:
  enum class State : std::uint8_t { Empty, HasText, HasGap };

  std::size_t depth_ = 0;  // 0: none is open
  State state_ = State::Empty;
};

}  // namespace richtext::rtf
