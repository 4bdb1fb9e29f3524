#include <algorithm>
#include <iterator>
#include <string_view>

#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtGui/QTextOption>

#include "richtext/characters/Unicode.h"
#include "richtext/document/Limits.h"
#include "richtext/document/Twips.h"
#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/FrameRoom.h"
#include "richtext/textdocument/HiddenText.h"
#include "richtext/textdocument/Marks.h"
#include "richtext/textdocument/PageHeight.h"
#include "richtext/textdocument/Paragraphs.h"
#include "richtext/textdocument/Pictures.h"
#include "richtext/textdocument/RowTables.h"
#include "richtext/textdocument/Rows.h"
#include "richtext/textdocument/TabStops.h"
#include "richtext/textdocument/TextDocument.h"

namespace richtext {
namespace {

// The toolkit takes some characters for the borders of its paragraphs and frames; these may not slip in.
char16_t WithinParagraph(char16_t unit) {
  switch (unit) {
    case u'\n':
    case u'\r':
    case ParagraphSeparator:
      return LineBreak;
    case 0xFDD0:
    case 0xFDD1:
      return Replacement;
    default:
      return unit;
  }
}

// Writes a page at a cursor. The toolkit's formats are made once for each format of the page.
class Filler {
 public:
  Filler(const Document& source, QTextCursor& cursor) : source_(source), cursor_(cursor), text_(source.text) {
    std::transform(text_.begin(), text_.end(), text_.begin(), WithinParagraph);
    std::transform(source.formats.begin(), source.formats.end(), std::back_inserter(formats_), ToTextFormat);
    std::transform(source.formats.begin(), source.formats.end(), std::back_inserter(marks_), ToMarkFormat);
    const double room = RoomOnPage(*cursor.document());
    for (const ParagraphFormat& format : source.paragraphFormats)
      ShowLastTabWithin(blockFormats_.emplace_back(ToBlockFormat(format)), room);
    const bool isInColumns = IsInRow(cursor.blockFormat()) && !cursor.document()->isEmpty();
    isWithinRow_ = isInColumns || TableAt(*cursor.document(), cursor.position());
    if (isInColumns)
      for (QTextBlockFormat& format : blockFormats_) format = InSameRow(format, cursor.blockFormat());
    else if (cursor.block().previous().isValid())
      isOddRow_ = IsOddRow(cursor.block().previous().blockFormat());
  }

  // The rest of a paragraph that is parted stays as it was.
  void Fill() {
    const QTextBlockFormat format = cursor_.blockFormat();
    const QTextCharFormat mark = cursor_.blockCharFormat();
    const bool endsInRow = source_.paragraphs.back().place == Place::RowEnd && !isWithinRow_;
    const bool parts = (source_.paragraphs.size() > 1 || endsInRow) && !cursor_.atBlockEnd();
    FillIn();
    if (!parts || keepsRest_) return;
    if (endsInRow) cursor_.insertBlock();
    cursor_.setBlockFormat(format);
    SetMark(cursor_.block(), mark);
  }

 private:
  void FillIn() {
    Place before = Place::Text;
    for (const Paragraph& paragraph : source_.paragraphs) {
      const bool isInRow = paragraph.place != Place::Text && !isWithinRow_;
      const bool beginsRow = isInRow && (before == Place::Text || before == Place::RowEnd);
      if (beginsRow) BeginRow(paragraph);
      if (isInRow && isTable_)
        BeginInTable(paragraph, beginsRow, before);
      else if (!isInRow || before != Place::CellEnd)
        Begin(paragraph, isInRow);
      for (std::uint32_t left = paragraph.length; left > 0; ++run_) {
        Insert(source_.runs[run_]);
        left -= std::min(left, source_.runs[run_].length);
      }
      if (!isWithinRow_) EndCell(paragraph);
      before = paragraph.place;
    }
  }

  void Begin(const Paragraph& paragraph, bool isInRow) {
    const Paragraph& last = isInRow ? EndOfBlock(paragraph) : paragraph;
    const QTextBlockFormat format = isInRow ? RowFormatOf(paragraph, last) : blockFormats_[paragraph.format];
    const QTextCharFormat& mark = marks_[last.markFormat];
    if (&paragraph != source_.paragraphs.data() || (isInRow && !cursor_.atBlockStart()))
      return cursor_.insertBlock(format, mark);
    const bool joins = !cursor_.atBlockStart() || (!cursor_.atBlockEnd() && source_.paragraphs.size() == 1);
    if (!isInRow && (joins || KeepsFormat(cursor_.block()))) return;
    cursor_.setBlockFormat(format);
    SetMark(cursor_.block(), mark);
  }

  void BeginRow(const Paragraph& first) {
    row_ = &source_.rowFormats[source_.rows[rowAt_++]];
    isOddRow_ = !isOddRow_;
    cells_ += row_->cells.size();
    isTable_ = tables_ < MostTables && cells_ <= MostCells && LengthOfRow(first) <= LongestTable;
    if (!isTable_) return;
    if (&first == source_.paragraphs.data() && cursor_.atBlockStart()) GoBeforeBlock();
    InsertRow(cursor_, *row_, PageWidth(*cursor_.document()));
    cell_ = 0;
    ++tables_;
  }

  static std::size_t LengthOfRow(const Paragraph& first) {
    std::size_t length = first.length;
    for (const Paragraph* at = &first; at->place != Place::RowEnd; ++at) length += at[1].length;
    return length;
  }

  // A row that comes in at the start of a paragraph does not part it: it stands between this and the one
  // before.
  void GoBeforeBlock() {
    const QTextBlock block = cursor_.block();
    if (block.blockNumber() == 0) {
      cursor_.setBlockFormat(GapFormat());
      return;
    }
    if (cursor_.document()->characterAt(block.position() - 1) == QChar(RowEndSign)) return;
    cursor_.setPosition(block.position() - 1);
    keepsRest_ = true;
  }

  void BeginInTable(const Paragraph& paragraph, bool beginsRow, Place before) {
    const QTextBlockFormat& format = blockFormats_[paragraph.format];
    const QTextCharFormat& mark = marks_[paragraph.markFormat];
    if (!beginsRow && before != Place::CellEnd) return cursor_.insertBlock(format, mark);
    cursor_.setBlockFormat(format);
    cursor_.setBlockCharFormat(WithPlace(mark, row_->cells[cell_++].place));
  }

  // The paragraphs of a row share a block as far as one that does not end with its cell.
  static const Paragraph& EndOfBlock(const Paragraph& first) {
    const Paragraph* last = &first;
    while (last->place == Place::CellEnd) ++last;
    return *last;
  }

  QTextBlockFormat RowFormatOf(const Paragraph& first, const Paragraph& last) const {
    const QTextBlockFormat& own = blockFormats_[last.format];
    const bool areColumns = last.place == Place::RowEnd;
    return InRow(areColumns ? InColumns(blockFormats_[first.format], *row_) : own, *row_, isOddRow_);
  }

  void EndCell(const Paragraph& paragraph) {
    if (paragraph.place != Place::CellEnd && paragraph.place != Place::RowEnd) return;
    const QTextCharFormat& mark = marks_[paragraph.markFormat];
    const bool endsRow = paragraph.place == Place::RowEnd;
    if (!isTable_)
      return cursor_.insertText(QStringLiteral("\t"),
                                CellEnd(mark, blockFormats_[paragraph.format], endsRow));
    cursor_.setPosition(cursor_.position() + 1);
    if (endsRow) cursor_.setBlockCharFormat(mark);
  }

  // A few words that come into an empty list item do not end the list.
  bool KeepsFormat(const QTextBlock& block) const {
    return source_.paragraphs.size() == 1 && FromBlockFormat(block.blockFormat()) != ParagraphFormat();
  }

  void Insert(const Run& run) {
    std::u16string_view rest = std::u16string_view(text_).substr(at_, run.length);
    const QTextCharFormat& format = formats_[run.format];
    hidden_ = source_.formats[run.format].hidden;
    at_ += run.length;
    while (!rest.empty()) {
      const std::size_t plain = std::min(rest.find(PictureMark), rest.size());
      InsertText(rest.substr(0, plain), format);
      if (plain < rest.size()) InsertPicture(format);
      rest.remove_prefix(std::min(plain + 1, rest.size()));
    }
  }

  void InsertText(std::u16string_view text, const QTextCharFormat& format) {
    if (text.empty()) return;
    const auto* units = reinterpret_cast<const QChar*>(text.data());
    const QString shown = QString::fromRawData(units, static_cast<qsizetype>(text.size()));
    if (!hidden_) return cursor_.insertText(shown, format);
    cursor_.insertText(QChar(HiddenSign),
                       HiddenFormat(format, QString::fromUtf16(text.data(), shown.size())));
  }

  void InsertPicture(const QTextCharFormat& format) {
    if (picture_ == source_.pictures.size()) return InsertText({&Replacement, 1}, format);
    const Picture& picture = source_.pictures[picture_++];
    InsertText({&PictureMark, 1}, KeepPicture(picture, format, *cursor_.document()));
  }

  const Document& source_;
  QTextCursor& cursor_;
  std::u16string text_;
  std::vector<QTextCharFormat> formats_;
  std::vector<QTextCharFormat> marks_;
  std::vector<QTextBlockFormat> blockFormats_;
  bool isWithinRow_ = false;  // what comes in is a part of a cell
  bool keepsRest_ = false;    // nothing of the paragraph at the cursor stands behind it
  bool isTable_ = false;      // the row in hand, and not one in columns
  int tables_ = static_cast<int>(cursor_.document()->rootFrame()->childFrames().size());
  std::size_t cells_ = 0;
  std::size_t cell_ = 0;  // of the row, the next one
  const RowFormat* row_ = nullptr;
  bool isOddRow_ = false;
  std::size_t rowAt_ = 0;
  bool hidden_ = false;  // the run in hand
  std::size_t run_ = 0;
  std::size_t at_ = 0;
  std::size_t picture_ = 0;
};

// Whether smaller letters (HeightGuard) make them lower.
bool AreLinesAsHighAsLetters(const QTextBlockFormat& format) {
  return format.lineHeightType() == QTextBlockFormat::SingleHeight ||
         format.lineHeightType() == QTextBlockFormat::ProportionalHeight;
}

// A paragraph that alone is too high gets lower lines, so that it is shown. Few letters make none.
void Squeeze(QTextDocument& document, int from, int to) {
  constexpr int Few = 500;
  HeightBound bound(document, PageWidth(document));
  for (QTextBlock block = document.findBlock(from); block.isValid() && block.position() <= to;
       block = block.next()) {
    if (block.length() < Few || AreLinesAsHighAsLetters(block.blockFormat())) continue;
    if (bound.Of(block) <= TallestParagraph) continue;
    QTextCursor(block).setBlockFormat(
        WithLineHeight(block.blockFormat(), TallestParagraph / bound.Lines(block)));
  }
}

// Of all that has come in up to the cursor, and of its neighbours.
void MakeRoom(int from, const QTextCursor& cursor) {
  const QTextBlock last = cursor.block();
  MakeRoomForFrames(*cursor.document(), std::max(0, from - 1), last.position() + last.length());
}

bool HasFrames(const Document& page) {
  return std::any_of(page.paragraphFormats.begin(), page.paragraphFormats.end(),
                     [](const ParagraphFormat& format) { return format.borders != ParagraphBorders(); });
}

void SetTabDistance(std::int32_t twips, QTextDocument& target) {
  QTextOption option = target.defaultTextOption();
  option.setTabStopDistance(twips / TwipsPerPixel);
  target.setDefaultTextOption(option);
  target.setProperty(TabDistanceProperty, twips);
}

}  // namespace

void FillDocument(const Document& source, QTextDocument& target) {
  target.setUndoRedoEnabled(false);
  target.clear();
  SetTabDistance(source.tabDistance, target);
  QTextCursor cursor(&target);
  cursor.beginEditBlock();
  Filler(source, cursor).Fill();
  Squeeze(target, 0, target.characterCount());
  if (HasFrames(source)) MakeRoomForFrames(target, 0, target.characterCount());
  cursor.endEditBlock();
  target.setUndoRedoEnabled(true);
}

void FillPlain(const QString& text, const QTextCharFormat& format, QTextDocument& target) {
  target.setUndoRedoEnabled(false);
  target.clear();
  SetTabDistance(DefaultTabDistance, target);
  QTextCursor cursor(&target);
  cursor.beginEditBlock();
  cursor.setBlockFormat(QTextBlockFormat());
  cursor.setBlockCharFormat(format);
  cursor.insertText(text, format);
  Squeeze(target, 0, target.characterCount());
  cursor.endEditBlock();
  target.setUndoRedoEnabled(true);
}

void InsertDocument(const Document& source, QTextCursor& cursor) {
  cursor.beginEditBlock();
  cursor.removeSelectedText();
  const int from = cursor.position();
  Filler(source, cursor).Fill();
  Squeeze(*cursor.document(), from, cursor.position());
  MakeRoom(from, cursor);
  cursor.endEditBlock();
}

void InsertPlain(const QString& text, const QTextCharFormat& format, QTextCursor& cursor) {
  cursor.beginEditBlock();
  const int from = cursor.selectionStart();
  cursor.insertText(text, WithoutCellEnd(format));
  Squeeze(*cursor.document(), from, cursor.position());
  MakeRoom(from, cursor);
  cursor.endEditBlock();
}

}  // namespace richtext
