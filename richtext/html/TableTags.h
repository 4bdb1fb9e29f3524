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
  // Whether the paragraph, met by Before, is the empty one of a cell that one above reaches over: it is left
  // out.
  bool IsCovered() const { return isOpen_ && CellInHand().isCovered; }
  QString Behind(const Paragraph& paragraph);
  // What stands behind them all.
  QString End() const;

 private:
  const RowFormat& Row(std::size_t number) const { return page_.rowFormats[page_.rows[number]]; }
  struct Cell {
    std::int32_t left = 0;  // edges, twips
    std::int32_t right = 0;
    std::size_t rows = 1;
    bool isEmpty = true;
    bool isCovered = false;              // by another one
    const CellFormat* lowest = nullptr;  // whose edge ends it below; its own where it covers none
    const CellFormat* outermost = nullptr;
  };
  using Cells = std::vector<Cell>;

  void TakeRows(const Paragraph& first);
  void MergeAcross(Cells& cells, const RowFormat& row);
  void MergeDown(std::size_t row, Cell& cell, const CellFormat& format);
  Cell* CellBelow(std::size_t row, const Cell& cell);
  QString BeginTable(const Paragraph& first);
  QString BeginRow() const;
  QString BeginCell() const;
  const Cell& CellInHand() const { return rows_[row_ - firstRow_][cell_]; }

  const Document& page_;
  // Of the open table:
  std::vector<Cells> rows_;
  std::vector<std::int32_t> edges_;  // of its cells, from left to right
  std::size_t firstRow_ = 0;
  bool isOpen_ = false;  // a table
  bool beginsCell_ = true;
  std::size_t row_ = 0;
  std::size_t cell_ = 0;
};

}  // namespace richtext::html
