// The list tables, which paragraphs refer to with \ls: lists of nine levels, and overrides, which are what is
// referred to, each naming a list.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "richtext/document/Document.h"

namespace richtext::rtf {

class ListTable {
 public:
  // Reading the tables, in the order of the document.
  void BeginList();
  void BeginLevel();
  void SetNumberKind(std::int32_t kind);  // \levelnfc
  void SetStart(std::int32_t start);
  // A level's text: its length, then characters, of which those below 9 stand for a level's number.
  void SetText(std::u16string_view text);
  void SetListId(std::int32_t id);
  void BeginOverride();
  void BeginOverrideLevel();
  void SetOverrideNumber(std::int32_t number);

  // The list of an \ls at a level; of the kind None when there is no such list. The level of what is returned
  // is 0.
  const ListFormat& Find(std::int32_t number, std::int32_t level) const;
  bool Has(std::int32_t number) const { return overrides_.count(number) != 0; }
  // The number of the list's first item at a level.
  std::int32_t Start(std::int32_t number, std::int32_t level) const;
  // The list that an \ls names: several \ls may count one list.
  std::int32_t ListId(std::int32_t number) const;

 private:
  struct List {
    std::size_t firstLevel = 0;  // in levels_
    std::size_t levels = 0;
  };
  struct Override {
    std::int32_t listId = 0;
    std::vector<std::int32_t> starts;  // by level; -1: the list's own
  };

  ListFormat* LevelInHand();

  std::vector<ListFormat> levels_;
  std::vector<List> lists_;
  std::unordered_map<std::int32_t, std::size_t> listOfId_;
  std::unordered_map<std::int32_t, Override> overrides_;
  Override override_;  // the one that is being read
  bool overriding_ = false;
};

}  // namespace richtext::rtf
