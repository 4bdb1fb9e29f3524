// The tab stops of paragraphs, by number: a paragraph's state is copied with every brace, and so holds a
// number and not the stops.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "richtext/document/Document.h"

namespace richtext::rtf {

// Each set is one stop more than a set before it; 0 is the set of none. So what groups share they share here,
// and the same words give the same number again. A set of twice as many stops as are kept is told anew, as
// those that are: so nobody walks further than that, however often stops are told.
class TabSets {
 public:
  // The number of a set with one stop more; `set` itself where there is no room for another one.
  std::uint32_t Add(std::uint32_t set, TabStop stop);
  // The stops by their positions, the MaxTabStops nearest at most. Of one place that told last counts.
  std::vector<TabStop> StopsOf(std::uint32_t set) const;

 private:
  struct Set {
    TabStop last;
    std::uint32_t rest;    // the set without it
    std::uint32_t length;  // the stops in it, also those that others outrank
  };
  std::uint32_t LengthOf(std::uint32_t set) const { return set == 0 ? 0 : sets_[set - 1].length; }
  std::uint32_t Append(std::uint32_t set, const TabStop& stop);

  std::vector<Set> sets_;                                     // number 1 is the first
  std::unordered_map<std::uint64_t, std::uint32_t> numbers_;  // by what makes a set, in few bits
};

}  // namespace richtext::rtf
