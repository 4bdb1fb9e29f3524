#include "richtext/rtf/TabSets.h"

#include <algorithm>
#include <cstddef>

#include "richtext/document/Limits.h"

namespace richtext::rtf {
namespace {

// Room for the tab stops of each format that a document can hold, one by one.
constexpr std::size_t MaxSets = MaxFormats * MaxTabStops;

std::uint64_t KeyOf(std::uint32_t set, const TabStop& stop) {
  const auto place = static_cast<std::uint64_t>(std::int64_t{stop.position} + MaxIndent);
  return (std::uint64_t{set} << 32) | (place << 8) | static_cast<std::uint64_t>(stop.kind);
}

bool IsBefore(const TabStop& one, const TabStop& other) {
  return one.position < other.position;
}

}  // namespace

std::uint32_t TabSets::Add(std::uint32_t set, TabStop stop) {
  stop.position = FittingIndent(stop.position);
  const std::uint64_t key = KeyOf(set, stop);
  if (const auto known = numbers_.find(key); known != numbers_.end()) return known->second;
  if (sets_.size() == MaxSets) return set;
  sets_.push_back({stop, set});
  return numbers_[key] = static_cast<std::uint32_t>(sets_.size());
}

std::vector<TabStop> TabSets::StopsOf(std::uint32_t set) const {
  std::vector<TabStop> stops;
  for (; set != 0 && stops.size() < MaxTabStops; set = sets_[set - 1].rest) {
    const TabStop& last = sets_[set - 1].last;
    const auto at = std::lower_bound(stops.begin(), stops.end(), last, IsBefore);
    if (at == stops.end() || at->position != last.position) stops.insert(at, last);
  }
  return stops;
}

}  // namespace richtext::rtf
