#include "richtext/textdocument/PageHeight.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include <QtGui/QFontMetricsF>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>

#include "richtext/characters/Unicode.h"
#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/LayoutFormats.h"
#include "richtext/textdocument/Paragraphs.h"
#include "richtext/textdocument/RowTables.h"

namespace richtext {
namespace {

constexpr double NarrowestRoom = 4;  // pixels; a line holds one letter at least, however narrow it is
constexpr double NarrowestPage = 20;
constexpr double ScrollBar = 20;
constexpr double TypedBetweenCounts = 300'000;
constexpr double LowerLetters[] = {96, 48, 24, 12, 6, 3, 1};  // points
constexpr int IsLowered = QTextFormat::UserProperty;          // bool, of a layout's format

// Of a letter's body.
constexpr double WidthOfBlank = 0.5;
constexpr double WidthOfMost = 0.9;
constexpr double WidthOfWide = 1.3;
constexpr double WidthOfForeign = 3;
constexpr double WidthOfPhrase = 20;  // a sentence that is one letter
constexpr double LineOfMost = 1.5;
constexpr double LineOfForeign = 4;
constexpr double LeastLine = 3;  // pixels more

// Latin, Greek and Cyrillic letters, marks of punctuation, and those of East Asia, which fill a square.
bool IsFamiliar(char16_t unit) {
  return unit < 0x530 || (unit >= 0x2000 && unit < 0x2070) || (unit >= 0x2E80 && unit < 0xA000) ||
         (unit >= 0xAC00 && unit < 0xD7B0) || (unit >= 0xFF00 && unit < 0xFFF0);
}

double WidthOf(char16_t unit) {
  constexpr std::u16string_view Wide = u"%&@MWmw";
  if (unit == u' ') return WidthOfBlank;
  if (unit < 0x80) return Wide.find(unit) == Wide.npos ? WidthOfMost : WidthOfWide;
  if (IsFamiliar(unit)) return WidthOfWide;
  return unit >= 0xFDF0 && unit < 0xFE00 ? WidthOfPhrase : WidthOfForeign;
}

double PixelsPerPoint() {
  const QScreen* const screen = QGuiApplication::primaryScreen();
  return (screen ? screen->logicalDotsPerInchY() : 96) / 72;
}

// The widest distance to the next tab stop.
double TabWidth(const QTextBlockFormat& format, double distance, double room) {
  return format.tabPositions().isEmpty() ? std::min(distance, room) : room;
}

// What becomes of natural lines of this height, and of pictures in them.
double InLines(const QTextBlockFormat& format, double lines, double line, double pictures) {
  const double natural = lines * line + pictures;
  switch (format.lineHeightType()) {
    case QTextBlockFormat::ProportionalHeight:
      return natural * format.lineHeight() / 100;
    case QTextBlockFormat::FixedHeight:
      return lines * format.lineHeight();
    case QTextBlockFormat::MinimumHeight:
      return natural + lines * format.lineHeight();
    default:
      return natural;
  }
}

// Returns whether something is new.
bool ShowLetters(const QTextBlock& block, std::optional<double> points) {
  if (!points) return SetLayoutFormats(block, IsLowered, {});
  QTextCharFormat format;
  format.setFontPointSize(*points);
  format.setProperty(IsLowered, true);
  return SetLayoutFormats(block, IsLowered, {{0, INT_MAX, format}});
}

}  // namespace

double HeightBound::Of(const QTextBlock& block, int from, int to) {
  Measure(block, from, to);
  const QTextBlockFormat format = block.blockFormat();
  return 2 * PaddingOfCell + format.topMargin() + format.bottomMargin() +
         InLines(format, lines_, line_, pictures_);
}

// Pictures and what stands empty behind a last line break stay as they are.
double HeightBound::OfLettersIn(double points, const QTextBlock& block) {
  body_ = points * PixelsPerPoint();
  const double height = Of(block);
  body_.reset();
  return height + LettersOf(block).body * LineOfForeign;
}

double HeightBound::BodyOf(const Letters& letters) const {
  return body_.value_or(letters.body);
}

double HeightBound::Lines(const QTextBlock& block) {
  Measure(block, 0, INT_MAX);
  return lines_;
}

double HeightBound::OfAll() {
  double height = 0;
  for (QTextBlock block = document_.begin(); block.isValid(); block = block.next()) height += Of(block);
  return height;
}

void HeightBound::Measure(const QTextBlock& block, int from, int to) {
  const QTextBlockFormat format = block.blockFormat();
  const double margins = format.leftMargin() + format.rightMargin();
  const double page = width_ - 2 * document_.documentMargin();
  const QTextTable* const row = TableAt(document_, block.position());
  room_ = std::max((row ? RoomInCell(*row, block.position(), page) : page) - margins, NarrowestRoom);
  tab_ = TabWidth(format, document_.defaultTextOption().tabStopDistance(), room_);
  lines_ = 2;  // the first may be indented
  word_ = pictures_ = 0;
  line_ = BodyOf(LettersOf(block)) * LineOfMost + LeastLine;
  const QString text = block.text();
  int at = 0;
  for (auto it = block.begin(); !it.atEnd(); ++it) {
    const QTextFragment fragment = it.fragment();
    const int begin = std::max(at, from);
    at += fragment.length();
    const int end = std::min(at, to);
    if (begin < end) Add(LettersOf(fragment), text, begin, end);
  }
}

void HeightBound::Add(const Letters& letters, const QString& text, int from, int to) {
  double tallest = LineOfMost;
  const double body = BodyOf(letters) * letters.share;
  for (int i = from; i < to; ++i) {
    const char16_t unit = text.at(i).unicode();
    AddLetter(unit, letters.arePictures ? letters.width : unit == u'\t' ? tab_ : WidthOf(unit) * body);
    if (!IsFamiliar(unit)) tallest = LineOfForeign;
  }
  if (letters.arePictures)
    pictures_ += (to - from) * letters.height;
  else
    line_ = std::max(line_, tallest * body + LeastLine);
}

// A line that breaks before a short word or within a long one is filled but for a third. Before a long one it
// breaks once. A wide letter may leave half of it free.
void HeightBound::AddLetter(char16_t unit, double width) {
  const double third = room_ / 3;
  const bool isWide = width > third;
  lines_ += isWide ? 2 * std::min(width, room_) / room_ : width / (room_ - third);
  if (unit == LineBreak) ++lines_;
  if (isWide || unit == u' ' || unit == LineBreak) {
    word_ = 0;
    return;
  }
  if (word_ <= third && word_ + width > third) ++lines_;
  word_ += width;
}

template <class Piece>
const HeightBound::Letters& HeightBound::LettersOf(const Piece& piece) {
  const auto [known, isNew] = letters_.try_emplace(piece.charFormatIndex());
  Letters& letters = known->second;
  if (!isNew) return letters;
  const QTextCharFormat format = piece.charFormat();
  letters.arePictures = format.isImageFormat();
  letters.width = format.toImageFormat().width();
  letters.height = format.toImageFormat().height();
  letters.body = FontSizeOf(format) * PixelsPerPoint();
  letters.share = ShareOf(FontNameOf(format));
  return letters;
}

// Some fonts are wider and taller than others.
double HeightBound::ShareOf(const QString& family) {
  const auto [known, isNew] = shares_.try_emplace(family.toStdString(), 1.0);
  if (!isNew) return known->second;
  QFont font(family);
  constexpr int Body = 100;
  font.setPixelSize(Body);
  font.setBold(true);
  const QFontMetricsF metrics(font);
  return known->second = std::max({1.0, metrics.horizontalAdvance(u'W') / (WidthOfWide * Body),
                                   metrics.horizontalAdvance(u'n') / (WidthOfMost * Body),
                                   metrics.lineSpacing() / (LineOfMost * Body)});
}

// What comes in behind what is hidden is hidden, too. What becomes of smaller letters is not reckoned piece
// by piece: another paragraph may have them now. Nor is what a paragraph that is shown takes from one that
// was hidden, and joins it.
void HeightGuard::NoteChange(int at, int removed, int added) {
  const bool isAllNew = added >= document_.characterCount() - 1;
  if (isAllNew) {
    heights_.emplace(document_, width_);
    bound_ = 0;
    recountAt_ = TallestPage;
    squeezes_ = false;
  }
  for (QTextBlock block = document_.findBlock(at); block.isValid() && block.position() <= at + added;
       block = block.next()) {
    if (block.previous().isValid() && !block.previous().isVisible()) block.setVisible(false);
    bound_ += heights_->Of(block, at - block.position(), at + added - block.position());
    squeezes_ = squeezes_ || HasOtherLines(block.blockFormat());
  }
  const bool isPartedOrJoined = document_.blockCount() != std::exchange(blocks_, document_.blockCount());
  const bool mayShowMore = (hid_ || squeezes_) && (removed > 1 || isPartedOrJoined);
  if (bound_ <= recountAt_ && !mayShowMore && !lowers_) return;
  const int first = Recount();
  if (first < document_.characterCount())
    document_.markContentsDirty(first, document_.characterCount() - first);
}

void HeightGuard::SetWidth(double pixels) {
  const double width = std::max(pixels - ScrollBar, NarrowestPage);
  if (std::exchange(width_, width) == width) return;
  heights_.emplace(document_, width_);
  Recount();
}

bool HeightGuard::Hides() const {
  return !document_.lastBlock().isVisible();
}

// Returns the position of the first block that is shown in another way than before.
int HeightGuard::Recount() {
  int first = document_.characterCount();
  bound_ = 0;
  bool fits = true;
  lowers_ = squeezes_ = false;
  for (QTextBlock block = document_.begin(); block.isValid(); block = block.next()) {
    const auto [height, points] = fits ? Shown(block) : Look();
    fits = fits && bound_ + height <= TallestPage;
    if (fits) bound_ += height;
    lowers_ = lowers_ || (fits && points);
    squeezes_ = squeezes_ || HasOtherLines(block.blockFormat());
    const bool isNew = ShowLetters(block, points);
    if (isNew || block.isVisible() != fits) first = std::min(first, block.position());
    block.setVisible(fits);
  }
  recountAt_ = std::max(TallestPage, bound_ + TypedBetweenCounts);
  hid_ = !fits;
  return first;
}

// One that is too high in any letters keeps its own.
HeightGuard::Look HeightGuard::Shown(const QTextBlock& block) {
  const double height = heights_->Of(block);
  if (height <= TallestParagraph) return {height, std::nullopt};
  for (const double points : LowerLetters)
    if (const double lower = heights_->OfLettersIn(points, block); lower <= TallestParagraph)
      return {lower, points};
  return {height, std::nullopt};
}

}  // namespace richtext
