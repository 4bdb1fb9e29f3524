#include "richtext/rtf/ListCounter.h"

#include <algorithm>
#include <cstddef>
#include <limits>

namespace richtext::rtf {

void ListCounter::Count(Key key, ListFormat& list) {
  EndDeeperLevels(key.list, list.level);
  std::int32_t& next = next_.try_emplace({key.list, list.level, key.override}, list.start).first->second;
  Neighbours& open = open_[static_cast<std::size_t>(list.level)];
  if (!GoesOn(open, key, list)) {
    list.start = next;
    list.twin = open.list == list;
    open = {key, list};
  }
  openLevels_ = list.level + 1;
  list = open.list;
  next = std::min(next + 1, MaxListNumber);
}

std::optional<std::int32_t> ListCounter::Last(Key key, std::int32_t level) const {
  const auto next = next_.find({key.list, level, key.override});
  return next == next_.end() ? std::nullopt : std::optional(next->second - 1);
}

bool ListCounter::GoesOn(const Neighbours& open, Key key, const ListFormat& list) {
  ListFormat looked = list;
  looked.start = open.list.start;
  looked.twin = open.list.twin;
  return open.key == key && open.list == looked;
}

void ListCounter::EndDeeperLevels(std::int32_t list, std::int32_t level) {
  constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
  CloseFrom(level + 1);
  next_.erase(next_.lower_bound({list, level + 1, least}),
              next_.lower_bound({list, MaxListLevel + 1, least}));
}

// Most paragraphs stand in no list: nothing is open before them.
void ListCounter::CloseFrom(std::int32_t level) {
  if (level < openLevels_) std::fill(open_.begin() + level, open_.begin() + openLevels_, Neighbours());
  openLevels_ = std::min(openLevels_, level);
}

}  // namespace richtext::rtf
