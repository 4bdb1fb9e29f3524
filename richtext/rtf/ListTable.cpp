#include "richtext/rtf/ListTable.h"

#include <algorithm>
#include <utility>

#include "richtext/document/Limits.h"
#include "richtext/document/ListLabel.h"

namespace richtext::rtf {
namespace {

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
  levelInHand_ = NoLevel;
  if (lists_.size() < MaxTableEntries) lists_.push_back({levels_.size(), 0});
}

// Where there is no room for a level, its words tell nothing.
void ListTable::BeginLevel() {
  levelInHand_ = NoLevel;
  if (levels_.size() == MaxFormats || !TakePlaceOfLevel()) return;
  levelInHand_ = levels_.size();
  levels_.push_back({});
  levels_.back().kind = ListKind::Decimal;
}

bool ListTable::TakePlaceOfLevel() {
  if (overriding_) {
    if (override_.levels.empty()) return false;
    override_.levels.back().level = levels_.size();
    return true;
  }
  if (lists_.empty() || lists_.back().levels == MostLevels) return false;
  ++lists_.back().levels;
  return true;
}

ListFormat* ListTable::LevelInHand() {
  return levelInHand_ == NoLevel ? nullptr : &levels_[levelInHand_];
}

void ListTable::SetNumberKind(std::int32_t kind) {
  if (ListFormat* level = LevelInHand()) level->kind = KindOf(kind);
}

void ListTable::SetStart(std::int32_t start) {
  start = std::clamp(start, 0, MaxListNumber);
  if (ListFormat* level = LevelInHand()) {
    level->start = start;
  } else if (overriding_ && !override_.levels.empty()) {
    override_.levels.back().start = start;
    override_.levels.back().restarts = true;
  }
}

void ListTable::SetText(std::u16string_view text) {
  ListFormat* level = LevelInHand();
  if (level == nullptr || text.empty()) return;
  text = text.substr(1, text[0]);
  const std::size_t own = text.find_last_of(LevelMarks);
  level->before = text.substr(0, std::min(own, MaxListText));
  level->after = own == text.npos ? std::u16string() : FittingListText(text.substr(own + 1));
  if (own != text.npos) return;
  const bool isBlank = text.find_first_not_of(u' ') == text.npos;
  if (isBlank) level->before.assign(1, u' ');
  // An outline may have a level that shows no number.
  level->kind = isBlank && level->kind != ListKind::Bullet ? ListKind::None : ListKind::Bullet;
}

void ListTable::SetListId(std::int32_t id) {
  if (overriding_) {
    override_.listId = id;
  } else if (!lists_.empty()) {
    listOfId_.try_emplace(id, lists_.size() - 1);
  }
}

void ListTable::SetStyleId(std::int32_t id) {
  if (!overriding_ && !lists_.empty()) lists_.back().style = id;
}

void ListTable::BeginOverride() {
  overriding_ = true;
  levelInHand_ = NoLevel;
  override_ = {};
}

void ListTable::BeginOverrideLevel() {
  levelInHand_ = NoLevel;
  if (overriding_ && override_.levels.size() < MostLevels) override_.levels.push_back({});
}

void ListTable::Restart() {
  if (overriding_ && !override_.levels.empty()) override_.levels.back().restarts = true;
}

void ListTable::SetOverrideNumber(std::int32_t number) {
  if (overriding_ && overrides_.size() < MaxTableEntries) overrides_.insert_or_assign(number, override_);
}

ListFormat ListTable::Find(std::int32_t number, std::int32_t level) const {
  const auto override = overrides_.find(number);
  if (override == overrides_.end()) return {};
  const auto at = static_cast<std::size_t>(level);
  const std::vector<OverrideLevel>& own = override->second.levels;
  const std::size_t row =
      at < own.size() && own[at].level != NoLevel ? own[at].level : FindLevel(override->second.listId, at);
  if (row == NoLevel) return {};
  ListFormat found = levels_[row];
  if (at < own.size() && own[at].start >= 0) found.start = own[at].start;
  return found;
}

// Levels beyond a list's last one are as that. A list without any has those of its style, which is a list,
// too.
std::size_t ListTable::FindLevel(std::int32_t listId, std::size_t level) const {
  auto found = listOfId_.find(listId);
  if (found != listOfId_.end() && lists_[found->second].levels == 0)
    found = listOfId_.find(lists_[found->second].style);
  if (found == listOfId_.end() || lists_[found->second].levels == 0) return NoLevel;
  const List& list = lists_[found->second];
  return list.firstLevel + std::min(level, list.levels - 1);
}

// A level that restarts takes the deeper ones along.
ListCounter::Key ListTable::CountOf(std::int32_t number, std::int32_t level) const {
  const auto override = overrides_.find(number);
  if (override == overrides_.end()) return {};
  const std::vector<OverrideLevel>& own = override->second.levels;
  const auto end = own.begin() + std::min(level + 1, static_cast<std::int32_t>(own.size()));
  const bool restarts = std::any_of(own.begin(), end, [](const auto& told) { return told.restarts; });
  return {override->second.listId, restarts ? number : 0};
}

}  // namespace richtext::rtf
