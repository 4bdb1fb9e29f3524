// The borders of paragraphs, by number: a paragraph's state is copied with every brace, and so holds a number
// and not the borders.
#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_set>
#include <vector>

#include "richtext/document/Document.h"
#include "richtext/document/FormatNumbers.h"
#include "richtext/document/Limits.h"

namespace richtext::rtf {

class BorderSets {
 public:
  BorderSets() { numbers_({}); }

  const ParagraphBorders& At(std::uint32_t set) const { return sets_[set]; }
  // The same for a paragraph of the document; none once there are so many that the document, when it is
  // written, could not be read back with them all.
  const ParagraphBorders& ForTheDocument(std::uint32_t set) {
    if (set != 0 && given_.size() < MaxFrames) given_.insert(set);
    return At(given_.contains(set) ? set : 0);
  }
  // The number of `borders`; `otherwise` where there is no room for more. 0 is the set of none.
  std::uint32_t NumberOf(const ParagraphBorders& borders, std::uint32_t otherwise) {
    return sets_.size() < MaxBorderSets ? numbers_(borders) : otherwise;
  }

 private:
  std::vector<ParagraphBorders> sets_;
  FormatNumbers<ParagraphBorders> numbers_{sets_};
  std::unordered_set<std::uint32_t> given_;
};

}  // namespace richtext::rtf
