// The styles of a document. By the format's own rule they are a help for who goes on writing: each paragraph
// tells all of its formats itself. One word processor, which people copy from, leaves out what a paragraph's
// style takes over from another one; a document of its own says so (\generator).
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "richtext/rtf/ControlWord.h"
#include "richtext/rtf/GroupState.h"

namespace richtext::rtf {

class StyleSheet {
 public:
  // The formats of a paragraph of some style.
  struct Formats {
    CharacterState character;
    ParagraphState paragraph;
  };
  struct Step {
    const ControlWord* word = nullptr;
    std::int32_t parameter = 0;
  };

  // Reading the table: the next word of a style, as it is called there.
  void Take(const ControlWord& word, std::int32_t parameter);

  void SetGenerator(std::u16string_view name) { counts_ = name.starts_with(u"LibreOffice/"); }
  // Whether the paragraphs rely on their styles.
  bool Counts() const { return counts_; }

  // The words that make a style, those of the styles that it is based on first.
  std::vector<Step> StepsOf(std::int32_t style) const;
  // What they make, once that is known.
  const Formats* Known(std::int32_t style) const;
  void Keep(std::int32_t style, const Formats& formats) { known_[style] = formats; }

 private:
  struct Style {
    std::int32_t base = -1;
    std::vector<Step> own;
  };
  std::unordered_map<std::int32_t, Style> styles_;
  std::unordered_map<std::int32_t, Formats> known_;
  std::int32_t inHand_ = 0;
  bool counts_ = false;
};

}  // namespace richtext::rtf
