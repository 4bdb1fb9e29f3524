#include "richtext/html/TableTags.h"

#include <algorithm>

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
  if (beginsCell_ && cell_ == 0) tags += QLatin1String("<tr>");
  if (beginsCell_) tags += BeginCell();
  beginsCell_ = false;
  return tags;
}

QString TableTags::BeginTable(const Paragraph& first) {
  isOpen_ = true;
  edges_.clear();
  const Paragraph* const end = page_.paragraphs.data() + page_.paragraphs.size();
  std::size_t row = row_;
  for (const Paragraph* at = &first; at != end && at->place != Place::Text; ++at)
    if (at->place == Place::RowEnd)
      for (const CellFormat& cell : Row(row++).cells) edges_.push_back(cell.right);
  std::sort(edges_.begin(), edges_.end());
  edges_.erase(std::unique(edges_.begin(), edges_.end()), edges_.end());
  return QLatin1String("<table style=\"border-collapse: collapse\">");
}

// As many columns wide as cells of other rows end in it.
QString TableTags::BeginCell() const {
  const std::vector<CellFormat>& cells = Row(row_).cells;
  const CellFormat& cell = cells[std::min(cell_, cells.size() - 1)];
  const auto columnOf = [&](std::int32_t edge) {
    return std::upper_bound(edges_.begin(), edges_.end(), edge) - edges_.begin();
  };
  const auto span = columnOf(cell.right) - (cell_ == 0 ? 0 : columnOf(cells[cell_ - 1].right));
  const QString columns = span > 1 ? QStringLiteral(" colspan=\"%1\"").arg(span) : QString();
  return QLatin1String("<td") + columns + QLatin1String(" style=\"") + CellRules(cell) + QLatin1String("\">");
}

QString TableTags::Behind(const Paragraph& paragraph) {
  if (paragraph.place != Place::CellEnd && paragraph.place != Place::RowEnd) return {};
  const bool endsRow = paragraph.place == Place::RowEnd;
  beginsCell_ = true;
  cell_ = endsRow ? 0 : cell_ + 1;
  row_ += endsRow;
  return QLatin1String(endsRow ? "</td></tr>" : "</td>");
}

QString TableTags::End() const {
  return isOpen_ ? QStringLiteral("</table>") : QString();
}

}  // namespace richtext::html
