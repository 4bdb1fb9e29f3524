#include "richtext/rtf/ParagraphFormats.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

#include "richtext/document/Limits.h"
#include "richtext/document/ListLabel.h"

namespace richtext::rtf {
namespace {

constexpr std::int32_t SingleLine = 240;
// Room for the tab stops of each format that a document can hold, one by one.
constexpr std::size_t MaxTabNodes = MaxFormats * MaxTabStops;

// How \sl and \slmult tell it: a negative number is exact.
void SetLineSpacing(const ParagraphState& state, ParagraphFormat& format) {
  const std::int32_t spacing = std::clamp(state.lineSpacing, -MaxIndent, MaxIndent);
  if (spacing == 0 || (spacing == SingleLine && state.multipleSpacing)) return;
  format.lineSpacing = std::abs(spacing);
  format.lineSpacingRule = spacing < 0             ? LineSpacingRule::Exact
                           : state.multipleSpacing ? LineSpacingRule::Multiple
                                                   : LineSpacingRule::AtLeast;
}

bool SameList(const ListFormat& one, ListFormat other) {
  other.start = one.start;
  return one == other;
}

}  // namespace

std::int32_t ListCounter::Count(std::int32_t list, std::int32_t level, std::int32_t start) {
  for (auto deeper = static_cast<std::size_t>(level) + 1; deeper < runs_.size(); ++deeper) {
    runs_[deeper] = {};
    next_.erase({list, static_cast<std::int32_t>(deeper)});
  }
  Items& items = runs_[static_cast<std::size_t>(level)];
  std::int32_t& next = next_.try_emplace({list, level}, start).first->second;
  if (!items.open || items.list != list) items = {true, list, next};
  next = std::min(next + 1, MaxListNumber);
  return items.start;
}

std::uint32_t ParagraphFormats::AddTab(std::uint32_t tabs, TabStop tab) {
  tab.position = FittingIndent(tab.position);
  const auto place = static_cast<std::uint64_t>(std::int64_t{tab.position} + MaxIndent);
  const std::uint64_t key = (std::uint64_t{tabs} << 32) | (place << 8) | static_cast<std::uint64_t>(tab.kind);
  if (const auto known = tabNumbers_.find(key); known != tabNumbers_.end()) return known->second;
  if (tabs_.size() == MaxTabNodes) return tabs;
  tabs_.push_back({tab, tabs});
  return tabNumbers_[key] = static_cast<std::uint32_t>(tabs_.size());
}

// Those told last outrank those before, of one place and when there are too many.
std::vector<TabStop> ParagraphFormats::TabsOf(std::uint32_t tabs) const {
  std::vector<TabStop> stops;
  const auto byPosition = [](const TabStop& a, const TabStop& b) { return a.position < b.position; };
  for (; tabs != 0 && stops.size() < MaxTabStops; tabs = tabs_[tabs - 1].before) {
    const TabStop& tab = tabs_[tabs - 1].tab;
    const auto at = std::lower_bound(stops.begin(), stops.end(), tab, byPosition);
    if (at == stops.end() || at->position != tab.position) stops.insert(at, tab);
  }
  return stops;
}

std::uint32_t ParagraphFormats::NumberOf(const Numbering& numbering) {
  const Numbering fitting{FittingList(numbering.list), FittingSpace(numbering.indent)};
  if (fitting.list.kind == ListKind::None) return 0;
  const bool known = !numberings_.empty() && numberings_.back() == fitting;
  if (!known && numberings_.size() < MaxFormats) numberings_.push_back(fitting);
  return static_cast<std::uint32_t>(numberings_.size());
}

std::uint32_t ParagraphFormats::NumberOfLabel(std::u16string_view label) {
  const std::optional<ListFormat> list = ListOfLabel(label);
  if (!list) return 0;
  const bool goesOn = label_ != 0 && SameList(numberings_[label_ - 1].list, *list) &&
                      (list->kind == ListKind::Bullet || list->start == nextLabel_);
  if (!goesOn) label_ = NumberOf({*list, 0});
  nextLabel_ = list->start + 1;
  return label_;
}

bool ParagraphFormats::IsListed(const ParagraphState& state) const {
  return state.numbering != 0 || (state.listNumber != 0 && lists_.Has(state.listNumber));
}

ParagraphFormat ParagraphFormats::FormatOf(const ParagraphState& state) const {
  ParagraphFormat format;
  format.alignment = state.alignment;
  format.direction = state.direction;
  format.leftIndent = state.leftIndent;
  format.rightIndent = state.rightIndent;
  format.firstLineIndent = state.firstLineIndent;
  format.spaceBefore = state.spaceBefore;
  format.spaceAfter = state.spaceAfter;
  SetLineSpacing(state, format);
  format.tabs = TabsOf(state.tabs);
  if (state.listNumber != 0 && lists_.Has(state.listNumber)) {
    format.list = lists_.Find(state.listNumber, state.listLevel);
    format.list.start = lists_.Start(state.listNumber, state.listLevel);
  } else if (state.numbering != 0) {
    const Numbering& numbering = numberings_[state.numbering - 1];
    format.list = numbering.list;
    if (format.leftIndent == 0 && format.firstLineIndent == 0) {
      format.leftIndent = numbering.indent;
      format.firstLineIndent = -numbering.indent;
    }
  }
  format.list.level = state.listLevel;
  format.list = FittingList(format.list);
  return format;
}

ParagraphFormat ParagraphFormats::FormatOfNext(const ParagraphState& state) {
  ParagraphFormat format = FormatOf(state);
  const bool counted = state.listNumber != 0 && lists_.Has(state.listNumber);
  if (!counted || format.list.kind == ListKind::None) {
    counter_.Interrupt();
  } else {
    const std::int32_t list = lists_.ListId(state.listNumber);
    const std::int32_t start = counter_.Count(list, state.listLevel, format.list.start);
    if (format.list.kind != ListKind::Bullet) format.list.start = start;
  }
  return format;
}

}  // namespace richtext::rtf
