// What paragraphs' states refer to by number, tab stops and lists, and the formats that are made of both.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "richtext/document/Document.h"
#include "richtext/rtf/GroupState.h"
#include "richtext/rtf/ListTable.h"

namespace richtext::rtf {

// The older way to tell of a list, which stands with its first paragraph.
struct Numbering {
  ListFormat list;
  std::int32_t indent = 0;  // twips; where the paragraph has no indents of its own

  bool operator==(const Numbering&) const = default;
};

// Finds the starts of lists that go on behind other paragraphs: a document's format knows only neighbours.
class ListCounter {
 public:
  // Counts an item and returns the number of the first of the neighbours that it belongs to. `start` is the
  // list's own first number.
  std::int32_t Count(std::int32_t list, std::int32_t level, std::int32_t start);
  // A paragraph of no list.
  void Interrupt() { runs_ = {}; }

 private:
  struct Items {
    bool open = false;
    std::int32_t list = 0;
    std::int32_t start = 0;
  };

  std::map<std::pair<std::int32_t, std::int32_t>, std::int32_t> next_;  // by list and level
  std::array<Items, 9> runs_;
};

class ParagraphFormats {
 public:
  ListTable& Lists() { return lists_; }

  // The number of these tab stops and one more.
  std::uint32_t AddTab(std::uint32_t tabs, TabStop tab);
  // The number of a list; 0 when it is of no kind.
  std::uint32_t NumberOf(const Numbering& numbering);
  // The number of the list that a paragraph's written label tells; 0 when it tells none. Labels that count on
  // are of one list.
  std::uint32_t NumberOfLabel(std::u16string_view label);

  bool IsListed(const ParagraphState& state) const;
  ParagraphFormat FormatOf(const ParagraphState& state) const;
  // Likewise, for the next paragraph of the document.
  ParagraphFormat FormatOfNext(const ParagraphState& state);
  // The next paragraph is of no list.
  void PassUnlisted() { counter_.Interrupt(); }

 private:
  struct TabNode {
    TabStop tab;
    std::uint32_t before;  // the number of the tab stops before it
  };

  std::vector<TabStop> TabsOf(std::uint32_t tabs) const;

  std::unordered_map<std::uint64_t, std::uint32_t> tabNumbers_;  // by what makes a node
  std::vector<TabNode> tabs_;                                    // number 1 is the first
  std::vector<Numbering> numberings_;                            // likewise
  ListTable lists_;
  ListCounter counter_;
  std::uint32_t label_ = 0;  // the list of the last label
  std::int32_t nextLabel_ = 0;
};

}  // namespace richtext::rtf
