// The list tables, which paragraphs refer to with \ls: lists of nine levels, and overrides, which are what is
// referred to, each naming a list.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "richtext/document/Document.h"
#include "richtext/document/Limits.h"
#include "richtext/rtf/ListCounter.h"

namespace richtext::rtf {

class ListTable {
 public:
  // Reading the tables, in the order of the document.
  void BeginList();
  void BeginLevel();
  void SetNumberKind(std::int32_t kind);  // \levelnfc
  void SetStart(std::int32_t start);
  // A level's text: its length, then characters, of which LevelMarks stand for the number of a level, the
  // last for the item's own. A text without one is a bullet.
  static constexpr std::u16string_view LevelMarks{u"\0\1\2\3\4\5\6\7\b", 9};
  static bool IsLevelMark(char16_t unit) { return unit < LevelMarks.size(); }
  void SetText(std::u16string_view text);
  void SetListId(std::int32_t id);
  void SetStyleId(std::int32_t id);  // the list's
  void BeginOverride();
  void BeginOverrideLevel();
  void Restart();  // the override's level counts for itself
  void SetOverrideNumber(std::int32_t number);

  // The list of an \ls at a level, with its first number there; of the kind None when there is no such list.
  // The level of what is returned is 0, and `before` may hold marks of outer levels.
  ListFormat Find(std::int32_t number, std::int32_t level) const;
  bool Has(std::int32_t number) const { return overrides_.count(number) != 0; }
  // What the items of an \ls at a level are counted with: several \ls may count one list, until one restarts.
  ListCounter::Key CountOf(std::int32_t number, std::int32_t level) const;

 private:
  struct List {
    std::size_t firstLevel = 0;  // in levels_
    std::size_t levels = 0;
    std::int32_t style = 0;
  };
  static constexpr std::size_t NoLevel = SIZE_MAX;
  static constexpr std::size_t MostLevels = MaxListLevel + 1;
  struct OverrideLevel {
    bool restarts = false;
    std::int32_t start = -1;      // -1: that of the level
    std::size_t level = NoLevel;  // in levels_; NoLevel: the list's own
  };
  struct Override {
    std::int32_t listId = 0;
    std::vector<OverrideLevel> levels;
  };

  ListFormat* LevelInHand();
  bool TakePlaceOfLevel();
  std::size_t FindLevel(std::int32_t listId, std::size_t level) const;

  std::vector<ListFormat> levels_;
  std::size_t levelInHand_ = NoLevel;
  std::vector<List> lists_;
  std::unordered_map<std::int32_t, std::size_t> listOfId_;
  std::unordered_map<std::int32_t, Override> overrides_;
  Override override_;  // the one that is being read
  bool overriding_ = false;
};

}  // namespace richtext::rtf
