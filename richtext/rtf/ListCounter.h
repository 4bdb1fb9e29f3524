// The numbers of a list's items, across whatever stands between them.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <tuple>

#include "richtext/document/Document.h"
#include "richtext/document/Limits.h"

namespace richtext::rtf {

// RTF's lists go on behind other paragraphs; a document's format tells the number of the first of neighbours
// and knows only these. This counts each list at each level, and tells where its neighbours now in hand
// began.
class ListCounter {
 public:
  // What counts together: the list, and the override where that begins a count of its own.
  struct Key {
    std::int32_t list = 0;
    std::int32_t override = 0;  // 0: none

    bool operator==(const Key&) const = default;
  };

  // Counts an item of the list, which tells its level and its own first number, and gives the list the number
  // of the first of the neighbours that the item belongs to. An item begins the deeper levels of its list
  // anew.
  void Count(Key key, ListFormat& list);
  // The number of the item met last of a level, to which deeper items may refer; nothing where there is none.
  std::optional<std::int32_t> Last(Key key, std::int32_t level) const;
  // A paragraph of no list: no item has a neighbour before it.
  void Interrupt() { CloseFrom(0); }

 private:
  // The items met last of a level, as the document tells them.
  struct Neighbours {
    Key key;
    ListFormat list;
  };

  static bool GoesOn(const Neighbours& open, Key key, const ListFormat& list);
  void EndDeeperLevels(std::int32_t list, std::int32_t level);
  void CloseFrom(std::int32_t level);

  std::map<std::tuple<std::int32_t, std::int32_t, std::int32_t>, std::int32_t>
      next_;                                       // item's number, by list, level and override
  std::array<Neighbours, MaxListLevel + 1> open_;  // by level
  std::int32_t openLevels_ = 0;                    // behind them none is open
};

}  // namespace richtext::rtf
