#include "richtext/RtfParagraphs.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

#include "richtext/Limits.h"
#include "richtext/ListLabel.h"

namespace richtext {
namespace {

constexpr std::int32_t SingleLine = 240;
constexpr std::size_t MaxTabWords = 4'000'000;

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

std::int32_t RtfListCounter::Count(std::int32_t list, std::int32_t level, std::int32_t start) {
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

std::uint32_t RtfParagraphs::AddTab(std::uint32_t tabs, TabStop tab) {
  if (tabs_.size() == MaxTabWords) return tabs;
  tab.position = FittingIndent(tab.position);
  tabs_.push_back({tab, tabs});
  return static_cast<std::uint32_t>(tabs_.size());
}

// Those told last outrank those before, of one place and when there are too many.
std::vector<TabStop> RtfParagraphs::TabsOf(std::uint32_t tabs) const {
  std::vector<TabStop> stops;
  const auto byPosition = [](const TabStop& a, const TabStop& b) { return a.position < b.position; };
  for (; tabs != 0 && stops.size() < MaxTabStops; tabs = tabs_[tabs - 1].before) {
    const TabStop& tab = tabs_[tabs - 1].tab;
    const auto at = std::lower_bound(stops.begin(), stops.end(), tab, byPosition);
    if (at == stops.end() || at->position != tab.position) stops.insert(at, tab);
  }
  return stops;
}

std::uint32_t RtfParagraphs::NumberOf(const RtfNumbering& numbering) {
  const RtfNumbering fitting{FittingList(numbering.list), FittingSpace(numbering.indent)};
  if (fitting.list.kind == ListKind::None) return 0;
  const bool known = !numberings_.empty() && numberings_.back() == fitting;
  if (!known && numberings_.size() < MaxFormats) numberings_.push_back(fitting);
  return static_cast<std::uint32_t>(numberings_.size());
}

std::uint32_t RtfParagraphs::NumberOfLabel(std::u16string_view label) {
  const std::optional<ListFormat> list = ListOfLabel(label);
  if (!list) return 0;
  const bool goesOn = label_ != 0 && SameList(numberings_[label_ - 1].list, *list) &&
                      (list->kind == ListKind::Bullet || list->start == nextLabel_);
  if (!goesOn) label_ = NumberOf({*list, 0});
  nextLabel_ = list->start + 1;
  return label_;
}

bool RtfParagraphs::IsListed(const ParagraphState& state) const {
  return state.numbering != 0 || (state.listNumber != 0 && lists_.Has(state.listNumber));
}

ParagraphFormat RtfParagraphs::FormatOf(const ParagraphState& state) const {
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
    const RtfNumbering& numbering = numberings_[state.numbering - 1];
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

ParagraphFormat RtfParagraphs::FormatOfNext(const ParagraphState& state) {
  ParagraphFormat format = FormatOf(state);
  const bool inTable = state.listNumber != 0 && format.list.kind != ListKind::None;
  if (!inTable || !lists_.Has(state.listNumber)) {
    counter_.Interrupt();
  } else if (format.list.kind != ListKind::Bullet) {
    format.list.start = counter_.Count(lists_.ListId(state.listNumber), state.listLevel, format.list.start);
  }
  return format;
}

}  // namespace richtext
