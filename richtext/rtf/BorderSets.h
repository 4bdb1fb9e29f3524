// The borders of paragraphs, by number: a paragraph's state is copied with every brace, and so holds a number
// and not the borders.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "richtext/document/Document.h"
#include "richtext/document/FormatNumbers.h"
#include "richtext/document/Limits.h"

namespace richtext::rtf {

class BorderSets {
 public:
  BorderSets() { numbers_({}); }

  const ParagraphBorders& At(std::uint32_t set) const { return sets_[set]; }
  // The number of `borders`; `otherwise` where there is no room for more. 0 is the set of none.
  std::uint32_t NumberOf(const ParagraphBorders& borders, std::uint32_t otherwise) {
    return sets_.size() < MaxSets ? numbers_(borders) : otherwise;
  }

 private:
  // Each word that tells something of a border makes a set.
  static constexpr std::size_t MaxSets = 2 * MaxFormats;

  std::vector<ParagraphBorders> sets_;
  FormatNumbers<ParagraphBorders> numbers_{sets_};
};

}  // namespace richtext::rtf
