#include "richtext/rtf/ParagraphFormats.h"

#include <algorithm>
#include <cstdlib>

#include "richtext/document/Limits.h"
#include "richtext/document/ListLabel.h"

namespace richtext::rtf {
namespace {

constexpr std::int32_t SingleLine = 240;

// How \sl and \slmult tell it: a negative number is exact.
void SetLineSpacing(const ParagraphState& state, ParagraphFormat& format) {
  const std::int32_t spacing = std::clamp(state.lineSpacing, -MaxIndent, MaxIndent);
  if (spacing == 0 || (spacing == SingleLine && state.multipleSpacing)) return;
  format.lineSpacing = std::abs(spacing);
  format.lineSpacingRule = spacing < 0             ? LineSpacingRule::Exact
                           : state.multipleSpacing ? LineSpacingRule::Multiple
                                                   : LineSpacingRule::AtLeast;
}

void SetIndents(const ParagraphState& state, ParagraphFormat& format) {
  const auto told = [](std::int32_t newer, std::int32_t older) {
    return newer == ParagraphState::NotTold ? older : newer;
  };
  const bool fromRight = state.direction == Direction::RightToLeft;
  format.leftIndent = told(fromRight ? state.endIndent : state.startIndent, state.leftIndent);
  format.rightIndent = told(fromRight ? state.startIndent : state.endIndent, state.rightIndent);
}

}  // namespace

// The list table outranks the older words, unless these tell of a list by themselves.
bool ParagraphFormats::IsOfTable(const ParagraphState& state) const {
  const bool tellsItself = state.numbering != 0 && !numberings_.At(state.numbering).isOfTable;
  return state.listNumber != 0 && !tellsItself && lists_.Has(state.listNumber);
}

bool ParagraphFormats::IsListed(const ParagraphState& state) const {
  return state.numbering != 0 || IsOfTable(state);
}

// A text that shows the item's number alone where it tells of levels that are none of the item's outer ones.
std::u16string ParagraphFormats::WithOuterNumbers(const std::u16string& text,
                                                  const ParagraphState& state) const {
  std::u16string shown;
  for (const char16_t unit : text) {
    if (!ListTable::IsLevelMark(unit)) {
      shown += unit;
      continue;
    }
    if (unit >= state.listLevel) return text.substr(0, text.find_first_of(ListTable::LevelMarks));
    const ListFormat outer = lists_.Find(state.listNumber, unit);
    const bool counts = outer.kind != ListKind::None && outer.kind != ListKind::Bullet;
    const auto last = counter_.Last(lists_.CountOf(state.listNumber, unit), unit);
    if (counts) shown += NumberText(outer.kind, last.value_or(outer.start));
  }
  return shown;
}

void ParagraphFormats::SetList(const ParagraphState& state, ParagraphFormat& format) const {
  if (IsOfTable(state)) {
    format.list = lists_.Find(state.listNumber, state.listLevel);
    format.list.before = WithOuterNumbers(format.list.before, state);
  } else if (state.numbering != 0) {
    const Numbering& numbering = numberings_.At(state.numbering);
    format.list = numbering.list;
    if (format.leftIndent == 0 && format.firstLineIndent == 0) {
      format.leftIndent = numbering.indent;
      format.firstLineIndent = -numbering.indent;
    }
  }
  format.list.level = state.listLevel;
  format.list = FittingList(format.list);
}

ParagraphFormat ParagraphFormats::FormatOf(const ParagraphState& state) {
  ParagraphFormat format;
  format.alignment = state.alignment;
  format.direction = state.direction;
  SetIndents(state, format);
  format.firstLineIndent = state.firstLineIndent;
  format.spaceBefore = state.spaceBefore;
  format.spaceAfter = state.spaceAfter;
  if (const std::int32_t ground = state.ground.Color(); ground != AutomaticColor)
    format.ground = static_cast<std::uint32_t>(ground);
  format.autoBefore = state.autoBefore;
  format.autoAfter = state.autoAfter;
  SetLineSpacing(state, format);
  format.borders = FittingBorders(borders_.ForTheDocument(state.borders));
  format.tabs = FittingTabs(tabs_.StopsOf(state.tabs), format.borders);
  SetList(state, format);
  return format;
}

ParagraphFormat ParagraphFormats::FormatOfNext(const ParagraphState& state) {
  ParagraphFormat format = FormatOf(state);
  if (!IsOfTable(state) || format.list.kind == ListKind::None) {
    counter_.Interrupt();
  } else {
    ListFormat counted = format.list;
    counter_.Count(lists_.CountOf(state.listNumber, state.listLevel), counted);
    if (counted.kind != ListKind::Bullet) format.list = counted;
  }
  return format;
}

}  // namespace richtext::rtf
