// Which of the backgrounds in imported HTML are a page's: the marks on its letters and the grounds of its
// paragraphs, and not what a web page lies on.
#pragma once

#include <cstdint>
#include <optional>

#include <QtGui/QColor>
#include <QtGui/QTextBlock>
#include <QtGui/QTextTable>

namespace richtext::html {

// The cell that a block stands in; none outside of tables.
QTextTableCell CellOf(const QTextBlock& block);

class Backgrounds {
 public:
  explicit Backgrounds(const QTextDocument& html);

  // 0x00BBGGRR.
  std::optional<std::uint32_t> HighlightOf(const QTextCharFormat& format, const QTextBlock& block) const;
  std::optional<std::uint32_t> GroundOf(const QTextBlock& block) const;

 private:
  std::optional<QRgb> page_;    // behind most letters, unless one marks words with it
  std::optional<QRgb> ground_;  // of most paragraphs
};

}  // namespace richtext::html
