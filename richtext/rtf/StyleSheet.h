// The styles of a document. By the format's own rule they are a help for who goes on writing: each paragraph
// tells all of its formats itself. One word processor, which people copy from, leaves out what a paragraph's
// style takes over from another one; a document of its own says so (\generator).
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
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
    std::size_t tabStops = 0;  // that its words set
  };
  struct Step {
    const ControlWord* word = nullptr;
    std::int32_t parameter = 0;
  };
  struct Style {
    std::int32_t base = -1;  // the number of the style that it is based on
    std::vector<Step> own;   // what it tells beside that
  };
  static constexpr int DeepestBase = 10;  // styles that are based on each other
  // A few bytes bring back the formats of a style, and tab stops are the longest of them.
  static constexpr std::size_t MostTabStops = 4;

  // Reading the table: the next word of a style, as it is called there, and the end of a style.
  void Take(const ControlWord& word, std::int32_t parameter);
  void EndStyle() { inHand_.reset(); }

  void SetGenerator(std::u16string_view name) { counts_ = name.starts_with(u"LibreOffice/"); }
  // Whether the paragraphs rely on their styles.
  bool Counts() const { return counts_; }

  // Null where there is no style of that number.
  const Style* Find(std::int32_t style) const;
  // What it makes, once that is known.
  const Formats* Known(std::int32_t style) const;
  void Keep(std::int32_t style, const Formats& formats) { known_[style] = formats; }

 private:
  std::unordered_map<std::int32_t, Style> styles_;
  std::unordered_map<std::int32_t, Formats> known_;
  std::optional<std::int32_t> inHand_;
  bool counts_ = false;
};

}  // namespace richtext::rtf
