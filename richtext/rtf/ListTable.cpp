#include "richtext/rtf/ListTable.h"

#include <algorithm>
#include <utility>

#include "richtext/document/Limits.h"
#include "richtext/document/ListLabel.h"

namespace richtext::rtf {
namespace {

constexpr char16_t LevelMarks = 9;  // units below it stand for the numbers of levels

ListKind KindOf(std::int32_t numberKind) {
  switch (numberKind) {
    case 1:
      return ListKind::UpperRoman;
    case 2:
      return ListKind::LowerRoman;
    case 3:
      return ListKind::UpperLetter;
    case 4:
      return ListKind::LowerLetter;
    case 23:
      return ListKind::Bullet;
    case 255:
      return ListKind::None;
    default:
      return ListKind::Decimal;
  }
}

}  // namespace

void ListTable::BeginList() {
  overriding_ = false;
  if (lists_.size() < MaxTableEntries) lists_.push_back({levels_.size(), 0});
}

void ListTable::BeginLevel() {
  const auto most = static_cast<std::size_t>(MaxListLevel) + 1;
  if (lists_.empty() || lists_.back().levels == most || levels_.size() == MaxFormats) return;
  ++lists_.back().levels;
  levels_.push_back({});
  levels_.back().kind = ListKind::Decimal;
}

ListFormat* ListTable::LevelInHand() {
  return lists_.empty() || lists_.back().levels == 0 ? nullptr : &levels_.back();
}

void ListTable::SetNumberKind(std::int32_t kind) {
  if (ListFormat* level = LevelInHand()) level->kind = KindOf(kind);
}

void ListTable::SetStart(std::int32_t start) {
  start = std::clamp(start, 0, MaxListNumber);
  if (overriding_) {
    if (!override_.starts.empty()) override_.starts.back() = start;
  } else if (ListFormat* level = LevelInHand()) {
    level->start = start;
  }
}

// Of a text that shows the numbers of several levels, only the last is the item's own.
void ListTable::SetText(std::u16string_view text) {
  ListFormat* level = LevelInHand();
  if (level == nullptr || text.empty()) return;
  text = text.substr(1, text[0]);
  if (text.empty()) level->kind = ListKind::None;  // an outline's level that shows no number
  const auto isMark = [](char16_t unit) { return unit < LevelMarks; };
  const auto first = std::find_if(text.begin(), text.end(), isMark);
  const auto last = std::find_if(text.rbegin(), text.rend(), isMark).base();
  level->before = FittingListText(std::u16string(text.begin(), first));
  level->after = first == text.end() ? std::u16string() : FittingListText(std::u16string(last, text.end()));
}

void ListTable::SetListId(std::int32_t id) {
  if (overriding_) {
    override_.listId = id;
  } else if (!lists_.empty()) {
    listOfId_.try_emplace(id, lists_.size() - 1);
  }
}

void ListTable::BeginOverride() {
  overriding_ = true;
  override_ = {};
}

void ListTable::BeginOverrideLevel() {
  const bool room = override_.starts.size() <= static_cast<std::size_t>(MaxListLevel);
  if (overriding_ && room) override_.starts.push_back(-1);
}

void ListTable::SetOverrideNumber(std::int32_t number) {
  if (overriding_ && overrides_.size() < MaxTableEntries) overrides_.insert_or_assign(number, override_);
}

const ListFormat& ListTable::Find(std::int32_t number, std::int32_t level) const {
  static const ListFormat none;
  const auto list = listOfId_.find(ListId(number));
  if (!Has(number) || list == listOfId_.end()) return none;
  const List& found = lists_[list->second];
  if (found.levels == 0) return none;
  const auto at = std::min(static_cast<std::size_t>(level), found.levels - 1);
  return levels_[found.firstLevel + at];
}

std::int32_t ListTable::ListId(std::int32_t number) const {
  const auto found = overrides_.find(number);
  return found == overrides_.end() ? 0 : found->second.listId;
}

std::int32_t ListTable::Start(std::int32_t number, std::int32_t level) const {
  const auto found = overrides_.find(number);
  const auto at = static_cast<std::size_t>(level);
  if (found != overrides_.end() && at < found->second.starts.size() && found->second.starts[at] >= 0)
    return found->second.starts[at];
  return Find(number, level).start;
}

}  // namespace richtext::rtf
