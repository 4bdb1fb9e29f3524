// The tab stops of paragraphs, by number: a paragraph's state is copied with every brace, and so holds a
// number and not the stops.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "richtext/document/Document.h"

namespace richtext::rtf {

// Each set is one stop more than a set before it; 0 is the set of none. So what groups share they share here,
// and the same words give the same number again.
class TabSets {
 public:
  // The number of a set with one stop more; `set` itself where there is no room for another one.
  std::uint32_t Add(std::uint32_t set, TabStop stop);
  // The stops by their positions, MaxTabStops at most. Those told last outrank those before, of one place and
  // when there are too many.
  std::vector<TabStop> StopsOf(std::uint32_t set) const;

 private:
  struct Set {
    TabStop last;
    std::uint32_t rest;  // the set without it
  };

  std::vector<Set> sets_;                                     // number 1 is the first
  std::unordered_map<std::uint64_t, std::uint32_t> numbers_;  // by what makes a set, in few bits
};

}  // namespace richtext::rtf
