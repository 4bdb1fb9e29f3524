// The widths that a table's markup tells of its columns before its rows.
#pragma once

#include <optional>
#include <vector>

#include "richtext/html/Tag.h"

namespace richtext::html {

// Is told of each tag in turn, with its spans in plain numbers, and gives the first cell that stands
// in a column alone the width of that (<col>), which the toolkit passes over. Cells that tell their own keep
// it.
class ToldColumns {
 public:
  void Take(Tag& tag);

 private:
  struct Open {
    std::vector<QString> columns;
    std::optional<std::size_t> group;  // where the columns that a <colgroup> without <col> tells begin
    std::vector<int> rows;             // of each column, how many rows the cell in it goes over yet
    std::size_t next = 0;              // column of the row in hand
  };
  void BeginGroup(const Tag& tag);
  void TakeColumn(const Tag& tag);
  void AddColumns(const Tag& tag);
  void BeginRow();
  void TakeCell(Tag& tag);

  std::vector<Open> open_;  // tables
};

}  // namespace richtext::html
