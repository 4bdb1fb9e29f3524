// The tables of a page as markup, around its paragraphs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include <QtCore/QString>

#include "richtext/document/Document.h"

namespace richtext::html {

// Is told of each paragraph of the page in turn.
class TableTags {
 public:
  explicit TableTags(const Document& page) : page_(page) {}

  // What stands before the paragraph, and behind it.
  QString Before(const Paragraph& paragraph);
  QString Behind(const Paragraph& paragraph);
  // What stands behind them all.
  QString End() const;

 private:
  const RowFormat& Row(std::size_t number) const { return page_.rowFormats[page_.rows[number]]; }
  QString BeginTable(const Paragraph& first);
  QString BeginCell() const;

  const Document& page_;
  std::vector<std::int32_t> edges_;  // of the open table's cells, from left to right
  bool isOpen_ = false;              // a table
  bool beginsCell_ = true;
  std::size_t row_ = 0;
  std::size_t cell_ = 0;
};

}  // namespace richtext::html
