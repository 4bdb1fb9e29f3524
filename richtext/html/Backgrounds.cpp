#include "richtext/html/Backgrounds.h"

#include <map>

#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include "richtext/html/Formats.h"
#include "richtext/textdocument/Formats.h"

namespace richtext::html {
namespace {

std::optional<QColor> Background(const QTextFormat& format) {
  const QBrush brush = format.background();
  if (brush.style() == Qt::NoBrush || !brush.color().isValid() || brush.color().alpha() == 0)
    return std::nullopt;
  return brush.color();
}

}  // namespace

QTextTableCell CellOf(const QTextBlock& block) {
  const QTextTable* table = QTextCursor(block).currentTable();
  return table == nullptr ? QTextTableCell() : table->cellAt(block.position());
}

Backgrounds::Backgrounds(const QTextDocument& html) {
  int all = 0;
  std::map<QRgb, int> letters, grounds;
  for (QTextBlock block = html.begin(); block.isValid(); block = block.next()) {
    if (const auto color = Background(block.blockFormat())) grounds[color->rgb()] += block.length() - 1;
    for (auto part = block.begin(); !part.atEnd(); ++part) {
      all += part.fragment().length();
      if (const auto color = Background(part.fragment().charFormat()))
        letters[color->rgb()] += part.fragment().length();
    }
  }
  for (const auto& [color, count] : letters)
    if (2 * count > all && !IsMarkersColor(QColor(color))) page_ = color;
  for (const auto& [color, count] : grounds)
    if (2 * count > all) ground_ = color;
}

std::optional<std::uint32_t> Backgrounds::HighlightOf(const QTextCharFormat& format,
                                                      const QTextBlock& block) const {
  const std::optional<QColor> color = Background(format);
  if (!color || color == Background(block.blockFormat())) return std::nullopt;
  const QTextTableCell cell = CellOf(block);
  if (cell.isValid() && color == Background(cell.format())) return std::nullopt;
  if (color->rgb() == page_) return std::nullopt;
  return IsLikePaper(*color) ? std::nullopt : std::optional(FromColor(*color));
}

// A dark one is the web page's own as a rule, and so is one that most of it stands on.
std::optional<std::uint32_t> Backgrounds::GroundOf(const QTextBlock& block) const {
  const std::optional<QColor> color = Background(block.blockFormat());
  const bool isKept = color && color->rgb() != ground_ && IsLightGround(*color);
  return isKept ? std::optional(FromColor(*color)) : std::nullopt;
}

}  // namespace richtext::html
