// The size of the tables in markup, before anybody makes them.
#pragma once

#include <map>

#include "richtext/html/Tag.h"

namespace richtext::html {

// The toolkit makes every row of a table as long as the longest one, so that a few letters can ask for
// millions of cells. This counts them tag by tag; where tables lie within others it counts too many.
class TableCells {
 public:
  explicit TableCells(qsizetype most) : left_(most) {}

  // Takes the next tag, and makes its spans the plain numbers that it counts. False where a row or a cell is
  // one too many: it is then not counted, and must not reach the toolkit.
  bool Take(Tag& tag);

 private:
  void Begin();
  bool TakeRow();
  bool TakeCell(qint64 columns, qint64 rows);
  bool Fits(qint64 rows, qint64 columns) const { return rows * columns <= left_; }

  qint64 left_;
  int open_ = 0;                   // tables
  bool isNested_ = false;          // one lies in the outermost one, whose rows may then go on anywhere
  qint64 rows_ = 0;                // of the outermost table
  qint64 columns_ = 0;             // of its longest row
  qint64 width_ = 0;               // of the row in hand
  qint64 carried_ = 0;             // columns of this row that cells above reach into
  std::map<qint64, qint64> ends_;  // how many of these by the last row that they reach
};

}  // namespace richtext::html
