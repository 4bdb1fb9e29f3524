#include <algorithm>
#include <unordered_map>

#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include "richtext/characters/Unicode.h"
#include "richtext/document/FormatNumbers.h"
#include "richtext/document/Limits.h"
#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/HiddenText.h"
#include "richtext/textdocument/Paragraphs.h"
#include "richtext/textdocument/Pictures.h"
#include "richtext/textdocument/RowTables.h"
#include "richtext/textdocument/Rows.h"
#include "richtext/textdocument/TextDocument.h"

namespace richtext {
namespace {

constexpr std::size_t BytesOfWork = 1024;  // of pictures, which are copied in the time of a small fragment

// Knows the toolkit's formats by its own numbers of them. Many of them can be one of the page's.
template <class Format>
class Known {
 public:
  explicit Known(FormatNumbers<Format>& numbers) : numbers_(numbers) {}

  // `make` gives the page's format where the toolkit's is met for the first time.
  template <class Make>
  std::uint32_t operator()(int index, Make make) {
    const auto [known, isNew] = byIndex_.try_emplace(index);
    if (isNew) known->second = numbers_(make());
    return known->second;
  }

 private:
  FormatNumbers<Format>& numbers_;
  std::unordered_map<int, std::uint32_t> byIndex_;
};

// Reads the part of a document between two positions.
class Taker {
 public:
  Taker(const QTextDocument& source, int from, int to)
      : source_(source), from_(from), to_(to), hasTables_(HasTables(source)) {
    if (hasTables_) BeginTable(TableAt(source, source.findBlock(from).position()));
  }

  Document Take() {
    QTextBlock block = source_.findBlock(from_);
    // The toolkit looks a position up in a tree, and a block or fragment begins where the one before it ends.
    for (int at = block.position(); block.isValid() && at <= to_; at += block.length(), block = block.next())
      TakeBlock(block, at);
    EndRow();
    if (taken_.paragraphs.empty())
      EndParagraph(paragraphNumbers_(ParagraphFormat()), numbers_(CharacterFormat()), Place::Text);
    return std::move(taken_);
  }

  // The same, no further than the block that has the work reach `most`.
  TakenPart TakePart(std::size_t most, const ComposedWord& word) {
    word_ = &word;
    QTextBlock block = source_.findBlock(from_);
    int at = from_;
    for (; block.isValid() && at <= to_ && (work_ < most || IsRowOpen() || table_);
         at += block.length(), block = block.next())
      TakeBlock(block, at);
    EndRow();
    return {std::move(taken_), at - from_, work_};
  }

 private:
  void TakeBlock(const QTextBlock& block, int at) {
    const char16_t sign = hasTables_ ? SignBehind(block, at) : ParagraphSeparator;
    if (!hasTables_ || !IsGap(block) || IsWordIn(at, at + 1)) TakeParagraph(block, at, sign);
    if (sign == RowEndSign)
      table_ = nullptr;
    else if (sign == CellSign && !table_ && at + block.length() <= to_)
      BeginTable(TableAt(source_, at + block.length()));
  }

  char16_t SignBehind(const QTextBlock& block, int at) const {
    return source_.characterAt(at + block.length() - 1).unicode();
  }

  // A row of the cells that are taken whole; where it is a part of one alone, that is text.
  void BeginTable(const QTextTable* table) {
    table_ = table;
    isRowTaken_ = false;
    if (!table) return;
    const bool isWhole = table->firstPosition() > from_ && table->lastPosition() <= to_;
    const int first = from_ < table->firstPosition() ? 0 : CellAt(*table, from_);
    const int last = to_ > table->lastPosition() ? table->columns() - 1 : CellAt(*table, to_);
    isRowTaken_ = isWhole || first < last;
    if (!isRowTaken_) return;
    RowFormat row = RowOf(*table);
    row.cells.resize(static_cast<std::size_t>(last) + 1);
    if (first > 0) row.left = row.cells[static_cast<std::size_t>(first) - 1].right;
    row.cells.erase(row.cells.begin(), row.cells.begin() + first);
    taken_.rows.push_back(rowNumbers_(FittingRow(row, row.cells.size())));
    endOfRow_ = last + 1 < table->columns() ? EndOfCell(*table, last) : table->lastPosition();
  }

  Place PlaceInTable(int end, char16_t sign) const {
    if (end == endOfRow_) return Place::RowEnd;
    return sign == ParagraphSeparator ? Place::Cell : Place::CellEnd;
  }

  void TakeParagraph(const QTextBlock& block, int at, char16_t sign) {
    isInRow_ = !table_ && IsRowTaken(block, at);
    if (!isInRow_) EndRow();
    ++work_;
    for (auto it = block.begin(); !it.atEnd(); ++it, ++work_) {
      const QTextFragment fragment = it.fragment();
      const int end = at + fragment.length();
      const int split = IsWordIn(at, end) ? word_->at : at;
      TakeFragment(fragment, at, from_, split);
      if (IsWordIn(at, end)) TakeWord();
      TakeFragment(fragment, at, std::max(from_, split), to_);
      at = end;
    }
    if (IsWordIn(at, at + 1)) TakeWord();
    const bool isBehindCell = cells_ > 0 && inCell_ == 0 && paragraphStart_ == taken_.text.size();
    if (isInRow_ && isBehindCell && (endsRow_ || !MayGoOn(block))) return EndRow();
    const Place place = table_ && isRowTaken_ ? PlaceInTable(block.position() + block.length() - 1, sign)
                        : isInRow_            ? Place::Cell
                                              : Place::Text;
    EndParagraph(paragraphFormat_(block.blockFormatIndex(), [&] { return FromBlockFormat(FormatOf(block)); }),
                 mark_(block.charFormatIndex(), [&] { return FromMarkFormat(block.charFormat()); }), place);
    if (isInRow_ && !MayGoOn(block)) EndRow();
  }

  static QTextBlockFormat FormatOf(const QTextBlock& block) {
    const QTextBlockFormat format = block.blockFormat();
    return format.hasProperty(ParagraphOfCellEnd) ? ParagraphOfCell(format) : format;
  }

  // A row is one only where all of a paragraph is taken.
  bool IsRowTaken(const QTextBlock& block, int at) {
    const auto [known, isNew] = rowsByIndex_.try_emplace(block.blockFormatIndex());
    if (isNew && IsInRow(block.blockFormat())) known->second = RowOf(block.blockFormat());
    row_ = known->second ? &*known->second : nullptr;
    return row_ && at >= from_ && at + block.length() - 1 <= to_;
  }

  void EndParagraph(std::uint32_t format, std::uint32_t mark, Place place) {
    const auto length = static_cast<std::uint32_t>(taken_.text.size() - paragraphStart_);
    taken_.paragraphs.push_back({length, format, mark, place});
    paragraphStart_ = taken_.text.size();
    firstRun_ = taken_.runs.size();
    if (!isInRow_) return;
    inCell_ = place == Place::Cell ? inCell_ + 1 : 0;
    if (place == Place::CellEnd) ++cells_;
  }

  bool IsRowOpen() const { return cells_ > 0 || inCell_ > 0; }

  // What stands behind the last cell is one more; without a cell it is text.
  void EndRow() {
    if (cells_ == 0)
      for (; inCell_ > 0; --inCell_)
        (taken_.paragraphs.end() - static_cast<std::ptrdiff_t>(inCell_))->place = Place::Text;
    if (cells_ == 0) return;
    taken_.paragraphs.back().place = Place::RowEnd;
    taken_.rows.push_back(rowNumbers_(FittingRow(*row_, cells_ + (inCell_ > 0))));
    cells_ = inCell_ = 0;
  }

  // Of a fragment of the ends of cells, among which there may be letters.
  void TakeCells(QStringView text, const QTextFragment& fragment) {
    const QTextCharFormat format = fragment.charFormat();
    endsRow_ = EndsRow(format);
    for (const QChar unit : text) {
      if (unit != u'\t' || (cells_ + 1 >= MaxCells && !endsRow_)) {
        AddText(QStringView(&unit, 1), numbers_(FromTextFormat(format)), format);
        continue;
      }
      EndParagraph(paragraphNumbers_(FromBlockFormat(ParagraphOfCell(format))),
                   numbers_(FromMarkFormat(format)), Place::CellEnd);
    }
  }

  bool IsWordIn(int from, int to) const {
    return word_ && !word_->text.isEmpty() && word_->at >= from && word_->at < to;
  }

  void TakeWord() { AddText(word_->text, numbers_(FromTextFormat(word_->format)), word_->format); }

  // `at`: where the fragment begins. What is taken of it lies between `least` and `most`.
  void TakeFragment(const QTextFragment& fragment, int at, int least, int most) {
    const int from = std::max(least, at);
    const int to = std::min(most, at + fragment.length());
    if (from >= to) return;
    const QString whole = fragment.text();
    const QStringView text = QStringView(whole).mid(from - at, to - from);
    if (isInRow_ && text.contains(u'\t') && IsCellEnd(fragment.charFormat()))
      return TakeCells(text, fragment);
    const auto shown =
        shown_(fragment.charFormatIndex(), [&] { return FromTextFormat(fragment.charFormat()); });
    // The toolkit takes its time to give a format, and few texts need it.
    if (!text.contains(QChar(HiddenSign)) && !text.contains(QChar(PictureMark))) return AddPlain(text, shown);
    const QTextCharFormat format = fragment.charFormat();
    const QString hidden = text.contains(QChar(HiddenSign)) ? HiddenTextOf(format) : QString();
    if (hidden.isEmpty()) return AddText(text, shown, format);
    for (const QChar unit : text) {
      if (unit == QChar(HiddenSign))
        AddText(hidden, HiddenNumber(format), format);
      else
        AddText(QStringView(&unit, 1), shown, format);
    }
  }

  std::uint32_t HiddenNumber(const QTextCharFormat& format) {
    CharacterFormat hidden = FromTextFormat(format);
    hidden.hidden = true;
    return numbers_(hidden);
  }

  void AddPlain(QStringView text, std::uint32_t format) {
    AddRun(static_cast<std::uint32_t>(text.size()), format);
    taken_.text.append(text.utf16(), static_cast<std::size_t>(text.size()));
  }

  void AddText(QStringView text, std::uint32_t format, const QTextCharFormat& drawn) {
    const std::size_t begin = taken_.text.size();
    AddPlain(text, format);
    for (std::size_t at = taken_.text.find(PictureMark, begin); at != std::u16string::npos;
         at = taken_.text.find(PictureMark, at + 1))
      TakePicture(taken_.text[at], drawn);
  }

  void AddRun(std::uint32_t length, std::uint32_t format) {
    if (taken_.runs.size() > firstRun_ && taken_.runs.back().format == format)
      taken_.runs.back().length += length;
    else
      taken_.runs.push_back({length, format});
  }

  // The sign of a picture that has none can come in as pasted text.
  void TakePicture(char16_t& sign, const QTextCharFormat& format) {
    if (!format.isImageFormat() && HiddenTextOf(format).isEmpty()) {
      sign = Replacement;
      return;
    }
    taken_.pictures.push_back(KeptPicture(format.toImageFormat(), source_));
    work_ += taken_.pictures.back().bytes.size() / BytesOfWork;
  }

  const QTextDocument& source_;
  const int from_;
  const int to_;
  const bool hasTables_;
  const QTextTable* table_ = nullptr;  // that the next block lies in
  bool isRowTaken_ = false;            // of it, as a row
  int endOfRow_ = 0;                   // where the last cell that is taken ends
  const ComposedWord* word_ = nullptr;
  std::size_t work_ = 0;
  Document taken_;
  std::size_t firstRun_ = 0;        // of the paragraph in hand
  std::size_t paragraphStart_ = 0;  // in the text
  bool isInRow_ = false;            // the block in hand
  const RowFormat* row_ = nullptr;  // its row
  bool endsRow_ = false;            // the end of a cell that was met last
  std::size_t cells_ = 0;           // of the open row
  std::size_t inCell_ = 0;          // paragraphs of the cell that has not ended
  std::unordered_map<int, std::optional<RowFormat>> rowsByIndex_;  // of blocks, by the toolkit's numbers
  FormatNumbers<RowFormat> rowNumbers_{taken_.rowFormats};
  FormatNumbers<CharacterFormat> numbers_{taken_.formats};
  FormatNumbers<ParagraphFormat> paragraphNumbers_{taken_.paragraphFormats};
  Known<CharacterFormat> shown_{numbers_};
  Known<CharacterFormat> mark_{numbers_};
  Known<ParagraphFormat> paragraphFormat_{paragraphNumbers_};
};

std::int32_t TabDistanceOf(const QTextDocument& source) {
  return FittingTabDistance(source.property(TabDistanceProperty).toInt());
}

}  // namespace

Document TakeDocument(const QTextDocument& source) {
  Document taken = Taker(source, 0, source.characterCount() - 1).Take();
  taken.tabDistance = TabDistanceOf(source);
  return taken;
}

TakenPart TakePart(const QTextDocument& source, int from, int length, std::size_t most,
                   const ComposedWord& word) {
  TakenPart taken = Taker(source, from, from + length - 1).TakePart(most, word);
  taken.page.tabDistance = TabDistanceOf(source);
  return taken;
}

Document TakeSelection(const QTextCursor& selection) {
  const Held held = HeldBy(selection);
  return Taker(*selection.document(), held.from, held.to).Take();
}

}  // namespace richtext
