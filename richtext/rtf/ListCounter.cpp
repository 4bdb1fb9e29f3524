#include "richtext/rtf/ListCounter.h"

#include <algorithm>
#include <cstddef>

#include "richtext/document/Limits.h"

namespace richtext::rtf {

std::int32_t ListCounter::Count(std::int32_t list, std::int32_t level, std::int32_t start) {
  for (std::int32_t deeper = level + 1; deeper <= MaxListLevel; ++deeper) {
    open_[static_cast<std::size_t>(deeper)].reset();
    counted_.erase({list, deeper});
  }
  Counted& counted = counted_.try_emplace({list, level}, Counted{start, start}).first->second;
  std::optional<std::int32_t>& open = open_[static_cast<std::size_t>(level)];
  if (open != list) counted.first = counted.next;
  open = list;
  counted.next = std::min(counted.next + 1, MaxListNumber);
  return counted.first;
}

}  // namespace richtext::rtf
