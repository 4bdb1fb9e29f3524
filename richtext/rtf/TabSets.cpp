#include "richtext/rtf/TabSets.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

#include "richtext/document/Limits.h"

namespace richtext::rtf {
namespace {

// Room for the tab stops of each format that a document can hold, one by one.
constexpr std::size_t MaxSets = MaxFormats * MaxTabStops;
constexpr std::uint32_t MaxLength = 2 * MaxTabStops;

std::uint64_t KeyOf(std::uint32_t set, const TabStop& stop) {
  const auto place = static_cast<std::uint64_t>(std::int64_t{stop.position} + MaxIndent);
  return (std::uint64_t{set} << 32) | (place << 8) | (static_cast<std::uint64_t>(stop.leader) << 4) |
         static_cast<std::uint64_t>(stop.kind);
}

}  // namespace

std::uint32_t TabSets::Add(std::uint32_t set, TabStop stop) {
  stop.position = FittingIndent(stop.position);
  if (LengthOf(set) == MaxLength) {
    if (MaxSets - sets_.size() < MaxTabStops) return set;
    const std::vector<TabStop> kept = StopsOf(set);
    set = std::accumulate(kept.begin(), kept.end(), std::uint32_t{0},
                          [this](std::uint32_t made, const TabStop& told) { return Append(made, told); });
  }
  return Append(set, stop);
}

std::uint32_t TabSets::Append(std::uint32_t set, const TabStop& stop) {
  const std::uint64_t key = KeyOf(set, stop);
  if (const auto known = numbers_.find(key); known != numbers_.end()) return known->second;
  if (sets_.size() == MaxSets) return set;
  sets_.push_back({stop, set, LengthOf(set) + 1});
  return numbers_[key] = static_cast<std::uint32_t>(sets_.size());
}

std::vector<TabStop> TabSets::StopsOf(std::uint32_t set) const {
  std::vector<TabStop> stops;  // those told last first
  for (; set != 0; set = sets_[set - 1].rest) stops.push_back(sets_[set - 1].last);
  const auto comesBefore = [](const TabStop& one, const TabStop& other) {
    return one.position < other.position;
  };
  std::stable_sort(stops.begin(), stops.end(), comesBefore);
  const auto isThere = [](const TabStop& one, const TabStop& other) {
    return one.position == other.position;
  };
  stops.erase(std::unique(stops.begin(), stops.end(), isThere), stops.end());
  stops.resize(std::min(stops.size(), MaxTabStops));
  return stops;
}

}  // namespace richtext::rtf
