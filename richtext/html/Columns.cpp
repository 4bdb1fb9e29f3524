#include "richtext/html/Columns.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include <QtGui/QFontMetricsF>
#include <QtGui/QTextBlock>

#include "richtext/document/Limits.h"
#include "richtext/document/Twips.h"
#include "richtext/html/Formats.h"
#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/RowTables.h"

namespace richtext::html {
namespace {

constexpr double PageWidth = 600;  // pixels
constexpr int MeasuredRows = 200;  // what comes behind them fits, or is broken into lines
constexpr int MostLetters = 200;   // of a line; so many are wider than the page
constexpr double Reserve = 4;      // pixels; borders, and what other fonts take

double WidthOf(const QTextBlock& block, const CharacterFormat& caret) {
  const ParagraphFormat paragraph = FromHtmlBlock(block);
  double widest = 0;
  double line = 0;
  int letters = 0;
  for (auto part = block.begin(); !part.atEnd() && letters < MostLetters; ++part) {
    const QTextCharFormat format = part.fragment().charFormat();
    if (format.isImageFormat()) {
      line += format.toImageFormat().width();
      continue;
    }
    const QFontMetricsF metrics(ToTextFormat(FromHtmlFormat(format, caret)).font());
    const QStringList lines = part.fragment().text().left(MostLetters).split(QChar::LineSeparator);
    for (const QString& text : lines) {
      if (&text != &lines.front()) line = 0;
      line += metrics.horizontalAdvance(text);
      letters += static_cast<int>(text.size());
      widest = std::max(widest, line);
    }
  }
  widest = std::max(widest, line);
  return widest + (paragraph.leftIndent + paragraph.rightIndent) / TwipsPerPixel;
}

double WidthOf(const QTextTableCell& cell, const CharacterFormat& caret) {
  double widest = 0;
  for (QTextBlock block = cell.firstCursorPosition().block();
       block.isValid() && block.position() <= cell.lastPosition(); block = block.next())
    widest = std::max(widest, WidthOf(block, caret));
  return widest + 2 * PaddingOfCell + Reserve;
}

// Of each column that tells none, that of its widest cell.
std::vector<double> WordsOf(const QTextTable& table, const std::vector<double>& told,
                            const CharacterFormat& caret) {
  std::vector<double> widths(told.size(), 2 * PaddingOfCell + Reserve);
  for (int row = 0; row < std::min(table.rows(), MeasuredRows); ++row)
    for (int column = 0; column < table.columns(); ++column) {
      const auto at = static_cast<std::size_t>(column);
      if (told[at] > 0 || widths[at] > PageWidth) continue;
      const QTextTableCell cell = table.cellAt(row, column);
      if (cell.row() == row && cell.columnSpan() == 1)
        widths[at] = std::max(widths[at], WidthOf(cell, caret));
    }
  return widths;
}

// The width that no column may exceed if all are to stand in the room; those that need less take less.
double FairShare(std::vector<double> widths, double room) {
  std::sort(widths.begin(), widths.end());
  for (std::size_t i = 0; i < widths.size(); ++i) {
    const double share = room / static_cast<double>(widths.size() - i);
    if (widths[i] > share) return share;
    room -= widths[i];
  }
  return PageWidth;
}

std::vector<double> ToldWidths(const QTextTable& table) {
  const QList<QTextLength> lengths = table.format().columnWidthConstraints();
  std::vector<double> told(static_cast<std::size_t>(std::max(table.columns(), 0)));
  for (std::size_t i = 0; i < told.size() && i < static_cast<std::size_t>(lengths.size()); ++i) {
    const QTextLength& length = lengths[static_cast<qsizetype>(i)];
    if (length.type() != QTextLength::VariableLength)
      told[i] = std::clamp<double>(length.value(PageWidth), 0, MaxIndent / TwipsPerPixel);
  }
  return told;
}

// Gives those that tell no width what the others leave.
void PartTheRest(const QTextTable& table, const CharacterFormat& caret, std::vector<double>& widths) {
  const std::vector<double> words = WordsOf(table, widths, caret);
  std::vector<double> untold;
  for (std::size_t i = 0; i < widths.size(); ++i)
    if (!(widths[i] > 0)) untold.push_back(words[i]);
  const QTextLength whole = table.format().width();
  const bool isToldWhole = whole.type() != QTextLength::VariableLength;
  const double all = isToldWhole ? std::min(whole.value(PageWidth), MaxIndent / TwipsPerPixel) : PageWidth;
  const double taken = std::accumulate(widths.begin(), widths.end(), 0.0);
  const double room = std::max(all - taken, PageWidth / 4);
  const double share = FairShare(untold, room);
  double used = 0;
  for (const double width : untold) used += std::min(width, share);
  const double stretch = isToldWhole && used > 0 ? std::max(room / used, 1.0) : 1;
  for (std::size_t i = 0; i < widths.size(); ++i)
    if (!(widths[i] > 0)) widths[i] = std::min(words[i], share) * stretch;
}

}  // namespace

std::vector<std::int32_t> RightEdgesOf(const QTextTable& table, const CharacterFormat& caret) {
  std::vector<double> widths = ToldWidths(table);
  if (std::any_of(widths.begin(), widths.end(), [](double width) { return !(width > 0); }))
    PartTheRest(table, caret, widths);
  const double all = std::accumulate(widths.begin(), widths.end(), 0.0) * TwipsPerPixel;
  const double scale = TwipsPerPixel * std::min(1.0, MaxIndent / std::max(all, 1.0));
  std::vector<std::int32_t> edges;
  double right = 0;
  for (const double width : widths) {
    right += width * scale;
    edges.push_back(
        FittingIndent(static_cast<std::int32_t>(std::lround(std::min<double>(right, MaxIndent)))));
  }
  return edges;
}

}  // namespace richtext::html
