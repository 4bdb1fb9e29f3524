// The numbers of a page's list items, which follow from the paragraphs' formats alone.
#pragma once

#include <array>
#include <cstdint>

#include "richtext/document/Document.h"
#include "richtext/document/Limits.h"

namespace richtext {

// An item counts on from the item of the same level and format before it; deeper items between the two do
// not matter, any other paragraph ends the list.
class ItemCounter {
 public:
  // Counts the next paragraph of the page. Its number; 0 where it is of no list.
  std::int32_t Count(const ListFormat& list);

 private:
  struct Items {
    ListFormat list;
    std::int32_t next = 0;
  };
  std::array<Items, MaxListLevel + 1> open_;  // by level
};

}  // namespace richtext
