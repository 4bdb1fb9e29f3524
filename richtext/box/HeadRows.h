// The head rows of tables, which a sheet repeats where a table goes on.
#pragma once

#include <memory>
#include <vector>

#include "richtext/box/PrintedPiece.h"

namespace richtext {

// Laid out, as all of a piece.
struct HeadOfTable {
  std::unique_ptr<PrintedPiece> piece;
  std::vector<PrintedLine> lines;
  double height = 0;  // pixels
};

// Knows the head that was asked for last; `source` must outlive it.
class HeadRows {
 public:
  HeadRows(const QTextDocument& source, const QSizeF& sheet) : source_(source), sheet_(sheet) {}

  // Of the table that a row of the source stands in, which is the rows that follow each other with nothing
  // between them. Nothing where it has no head, and where the row is one of that.
  const HeadOfTable* Of(const QTextTable& row);

 private:
  void LayOut(int from, int to);

  const QTextDocument& source_;
  const QSizeF sheet_;
  int from_ = -1;  // where the known one begins, in the source
  HeadOfTable head_;
};

}  // namespace richtext
