// The widths that a table's markup tells of its columns before its rows.
#pragma once

#include <vector>

#include "richtext/html/Tag.h"

namespace richtext::html {

// Is told of each tag in turn, with its spans in plain numbers, and gives the cells of a table's first row
// the widths of their columns (<col>), which the toolkit passes over. Cells that tell their own keep it.
class ToldColumns {
 public:
  void Take(Tag& tag);

 private:
  struct Open {
    std::vector<QString> columns;
    bool isTall = false;   // a cell goes on in the next row
    std::size_t next = 0;  // column of the row in hand
  };
  void TakeColumn(const Tag& tag);
  void BeginRow();
  void TakeCell(Tag& tag);

  std::vector<Open> open_;  // tables
};

}  // namespace richtext::html
