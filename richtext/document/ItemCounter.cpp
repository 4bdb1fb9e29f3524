#include "richtext/document/ItemCounter.h"

#include <algorithm>

namespace richtext {

std::int32_t ItemCounter::Count(const ListFormat& list) {
  const bool isItem = list.kind != ListKind::None;
  const auto level = open_.begin() + (isItem ? std::clamp(list.level, 0, MaxListLevel) : 0);
  std::fill(level + (isItem ? 1 : 0), open_.end(), Items());
  if (!isItem) return 0;
  if (level->list != list) *level = {list, list.start};
  return level->next++;
}

}  // namespace richtext
