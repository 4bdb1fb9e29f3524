// The list tables of a written document: what newer readers, which know no \pn, make its lists of.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "richtext/document/Document.h"
#include "richtext/document/Limits.h"
#include "richtext/rtf/Output.h"

namespace richtext::rtf {

// Items that follow each other are of one list, until one is of another format than the items of its level
// before it; any other paragraph ends the list. Beyond MaxListTable the items are of no list of the table.
class ListTableWriter {
 public:
  explicit ListTableWriter(const Document& document);

  // The \ls number of a paragraph; 0 where it has none.
  std::int32_t NumberOf(std::size_t paragraph) const {
    return paragraph < numbers_.size() ? numbers_[paragraph] : 0;
  }
  void WriteTo(Output& out) const;

 private:
  // A level looks like the paragraph that is met first of it.
  using List = std::array<const ParagraphFormat*, MaxListLevel + 1>;

  std::int32_t TakeItem(const ParagraphFormat& format);
  static void WriteList(const List& list, std::int32_t id, Output& out);

  std::vector<List> lists_;  // the first is \ls1
  std::vector<std::int32_t> numbers_;
  bool isOpen_ = false;        // the last list may go on
  std::size_t estimated_ = 0;  // bytes
};

}  // namespace richtext::rtf
