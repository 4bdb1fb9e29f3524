#include "richtext/document/Table.h"

#include <algorithm>

#include "richtext/document/Limits.h"
#include "richtext/document/Twips.h"

namespace richtext {
namespace {

void Fit(Border& border) {
  if (!IsShown(border)) border = {border.kind, 0, {}};
  border.width = std::clamp(border.width, 0, MaxBorder);
}

}  // namespace

RowFormat FittingRow(RowFormat row, std::size_t cells) {
  row.left = FittingIndent(row.left);
  row.gap = FittingSpace(row.gap);
  row.height = FittingIndent(row.height);
  cells = std::clamp<std::size_t>(cells, 1, MaxCells);
  while (row.cells.size() < cells) {
    const std::int32_t left = row.cells.empty() ? row.left : FittingIndent(row.cells.back().right);
    row.cells.emplace_back().right = FittingIndent(left + TwipsPerInch);
  }
  row.cells.resize(cells);
  std::for_each(row.borders.begin(), row.borders.end(), Fit);
  for (CellFormat& cell : row.cells) {
    cell.right = FittingIndent(cell.right);
    std::for_each(cell.borders.begin(), cell.borders.end(), Fit);
  }
  return row;
}

}  // namespace richtext
