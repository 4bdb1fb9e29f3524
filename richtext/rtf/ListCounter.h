// The numbers of a list's items, across whatever stands between them.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <utility>

#include "richtext/document/Limits.h"

namespace richtext::rtf {

// RTF's lists go on behind other paragraphs; a document's format tells the number of the first of neighbours
// and knows only these. This counts each list at each level, and tells where its neighbours now in hand
// began.
class ListCounter {
 public:
  // Counts an item and returns the number of the first of the neighbours that it belongs to. `start` is the
  // list's own first number. An item begins the deeper levels of its list anew.
  std::int32_t Count(std::int32_t list, std::int32_t level, std::int32_t start);
  // A paragraph of no list: no item has a neighbour before it.
  void Interrupt() { open_ = {}; }

 private:
  struct Counted {
    std::int32_t next;   // item's number
    std::int32_t first;  // of the neighbours, while they go on
  };

  std::map<std::pair<std::int32_t, std::int32_t>, Counted> counted_;  // by list and level
  std::array<std::optional<std::int32_t>, MaxListLevel + 1>
      open_;  // by level: the list whose neighbours go on there
};

}  // namespace richtext::rtf
