#include "richtext/html/TableTags.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "richtext/document/Twips.h"
#include "richtext/html/BorderRules.h"
#include "richtext/textdocument/Formats.h"

namespace richtext::html {
namespace {

QString CellRules(const CellFormat& cell) {
  QString rules;
  for (std::size_t side = 0; side < cell.borders.size(); ++side)
    rules += BorderRule(SideNames[side], cell.borders[side]);
  if (cell.ground) rules += QStringLiteral("background-color: %1; ").arg(ToColor(*cell.ground).name());
  rules += QLatin1String("vertical-align: ");
  return rules + QLatin1String(cell.place == PlaceInCell::Top      ? "top"
                               : cell.place == PlaceInCell::Center ? "middle"
                                                                   : "bottom");
}

}  // namespace

QString TableTags::Before(const Paragraph& paragraph) {
  if (paragraph.place == Place::Text) {
    const QString end = End();
    isOpen_ = false;
    return end;
  }
  QString tags = isOpen_ ? QString() : BeginTable(paragraph);
  if (beginsCell_ && cell_ == 0) tags += BeginRow();
  if (beginsCell_) tags += BeginCell();
  beginsCell_ = false;
  return tags;
}

// The paragraphs of a row end as many cells as it has.
void TableTags::TakeRows(const Paragraph& first) {
  rows_.assign(1, {});
  firstRow_ = row_;
  const Paragraph* const end = page_.paragraphs.data() + page_.paragraphs.size();
  Cell cell;
  for (const Paragraph* at = &first; at != end && at->place != Place::Text; ++at) {
    cell.isEmpty = cell.isEmpty && at->length == 0;
    if (at->place != Place::CellEnd && at->place != Place::RowEnd) continue;
    const RowFormat& row = Row(firstRow_ + rows_.size() - 1);
    const std::size_t number = rows_.back().size();
    cell.left = number == 0 ? 0 : row.cells[number - 1].right;
    cell.right = row.cells[number].right;
    cell.lowest = cell.outermost = &row.cells[number];
    rows_.back().push_back(std::exchange(cell, {}));
    if (at->place == Place::RowEnd) rows_.emplace_back();
  }
}

// Where there are words in a cell that another one reaches over, it stays.
void TableTags::MergeAcross(Cells& cells, const RowFormat& row) {
  Cell* first = nullptr;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const Merging across = row.cells[i].across;
    cells[i].isCovered = first && across == Merging::Continued && cells[i].isEmpty;
    if (cells[i].isCovered) {
      first->right = cells[i].right;
      first->outermost = cells[i].outermost;
    } else {
      first = across == Merging::First ? &cells[i] : nullptr;
    }
  }
}

TableTags::Cell* TableTags::CellBelow(std::size_t row, const Cell& cell) {
  for (std::size_t i = 0; row < rows_.size() && i < rows_[row].size(); ++i) {
    Cell& below = rows_[row][i];
    const bool fits = below.left == cell.left && below.right == cell.right && !below.isCovered;
    const bool goesOn = Row(firstRow_ + row).cells[i].down == Merging::Continued && below.isEmpty;
    if (fits && goesOn) return &below;
  }
  return nullptr;
}

void TableTags::MergeDown(std::size_t row, Cell& cell, const CellFormat& format) {
  if (cell.isCovered || format.down != Merging::First) return;
  for (Cell* below = CellBelow(row + 1, cell); below; below = CellBelow(row + cell.rows, cell)) {
    below->isCovered = true;
    cell.lowest = below->lowest;
    ++cell.rows;
  }
}

QString TableTags::BeginTable(const Paragraph& first) {
  isOpen_ = true;
  TakeRows(first);
  edges_.assign(1, 0);
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    if (!rows_[row].empty()) MergeAcross(rows_[row], Row(firstRow_ + row));
    for (const Cell& cell : rows_[row]) edges_.push_back(cell.right);
  }
  for (std::size_t row = 0; row < rows_.size(); ++row)
    for (std::size_t cell = 0; cell < rows_[row].size(); ++cell)
      MergeDown(row, rows_[row][cell], Row(firstRow_ + row).cells[cell]);
  std::sort(edges_.begin(), edges_.end());
  edges_.erase(std::unique(edges_.begin(), edges_.end()), edges_.end());
  QString tags = QLatin1String("<table style=\"border-collapse: collapse\">");
  for (std::size_t i = 1; i < edges_.size(); ++i)
    tags +=
        QStringLiteral("<col width=\"%1\">").arg(std::lround((edges_[i] - edges_[i - 1]) / TwipsPerPixel));
  return tags;
}

// In markup every height is the least one.
QString TableTags::BeginRow() const {
  const std::int32_t height = std::abs(Row(row_).height);
  if (height == 0) return QStringLiteral("<tr>");
  return QStringLiteral("<tr style=\"height: %1pt\">").arg(height / 20.0);
}

// As many columns wide as cells of other rows end in it.
QString TableTags::BeginCell() const {
  const Cell& cell = CellInHand();
  if (cell.isCovered) return {};
  const auto columnOf = [&](std::int32_t edge) {
    return std::lower_bound(edges_.begin(), edges_.end(), edge) - edges_.begin();
  };
  const auto columns = columnOf(cell.right) - columnOf(cell.left);
  QString tag = QLatin1String("<td");
  if (columns > 1) tag += QStringLiteral(" colspan=\"%1\"").arg(columns);
  if (cell.rows > 1) tag += QStringLiteral(" rowspan=\"%1\"").arg(cell.rows);
  CellFormat format = Row(row_).cells[cell_];
  format.borders[BottomSide] = cell.lowest->borders[BottomSide];
  format.borders[RightSide] = cell.outermost->borders[RightSide];
  return tag + QLatin1String(" style=\"") + CellRules(format) + QLatin1String("\">");
}

QString TableTags::Behind(const Paragraph& paragraph) {
  if (paragraph.place != Place::CellEnd && paragraph.place != Place::RowEnd) return {};
  const bool endsRow = paragraph.place == Place::RowEnd;
  const QString end = IsCovered() ? QString() : QStringLiteral("</td>");
  beginsCell_ = true;
  cell_ = endsRow ? 0 : cell_ + 1;
  row_ += endsRow;
  return endsRow ? end + QLatin1String("</tr>") : end;
}

QString TableTags::End() const {
  return isOpen_ ? QStringLiteral("</table>") : QString();
}

}  // namespace richtext::html
