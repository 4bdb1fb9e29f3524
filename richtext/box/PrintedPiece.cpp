#include "richtext/box/PrintedPiece.h"

#include <algorithm>
#include <cmath>

#include <QtCore/QTextBoundaryFinder>
#include <QtCore/QUrl>
#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QTextCursor>

#include "richtext/box/ColorLetters.h"
#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/FramePainter.h"
#include "richtext/textdocument/FrameRoom.h"
#include "richtext/textdocument/HiddenText.h"
#include "richtext/textdocument/PageHeight.h"
#include "richtext/textdocument/Paragraphs.h"
#include "richtext/textdocument/Pictures.h"
#include "richtext/textdocument/RowTables.h"
#include "richtext/textdocument/TabStops.h"

namespace richtext {
namespace {

constexpr double TallestPicture = 0.95;  // of the sheet: letters may hang below it in its line

}  // namespace

PrintedPiece::PrintedPiece(const QTextDocument& source, int from, int to, const QSizeF& sheet, Behind behind)
    : source_(source), from_(from), sheet_(sheet) {
  setUndoRedoEnabled(false);
  setDocumentMargin(0);
  setUseDesignMetrics(true);  // letters stand where they stand on the paper, and not on the screen's grid
  QTextOption option = source.defaultTextOption();
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  setDefaultTextOption(option);
  Copy(to);
  if (behind == Behind::MoreText) AddNeighbour(to);
  MakeRoomForFrames(*this, 0, characterCount());
  QTextCursor first(this);
  QTextBlockFormat format = first.blockFormat();
  format.setTopMargin(0);
  if (source.findBlock(from).position() < from) first.setBlockFormat(format);
}

// What the page tells, which the screen may show with smaller indents and lower lines.
QTextBlockFormat PrintedPiece::OnPaper(const QTextBlock& block) const {
  const bool isEnd = block.position() < from_ && block.position() + block.length() - 1 == from_;
  if (IsGap(block) || (isEnd && TableAt(source_, from_ + 1))) return GapFormat();
  QTextBlockFormat format = ToBlockFormat(FromBlockFormat(block.blockFormat()), sheet_.width());
  ShowLastTabWithin(format, sheet_.width());
  return format;
}

bool PrintedPiece::IsCopied(const QTextTable* row, int to) const {
  return row && row->firstPosition() > from_ && row->lastPosition() < to;
}

// `to` and the blocks are the source's.
void PrintedPiece::Copy(int to) {
  QTextCursor cursor(this);
  cursor.beginEditBlock();
  const QTextBlock first = source_.findBlock(from_);
  QTextBlockFormat format = OnPaper(first);
  if (from_ > first.position()) format.setTextIndent(0);
  cursor.setBlockFormat(format);
  cursor.setBlockCharFormat(first.charFormat());
  for (QTextBlock block = first; block.isValid() && block.position() < to; block = block.next()) {
    if (block != first) CopyEnd(block, to, cursor);
    CopyText(block, to, cursor);
  }
  cursor.endEditBlock();
}

// The paragraph that begins where the piece ends, without a letter. A row has nothing in common with what
// stands beside it.
void PrintedPiece::AddNeighbour(int to) {
  const QTextBlock block = source_.findBlock(to);
  if (block.position() != to || TableAt(source_, to) || TableAt(source_, to - 1)) return;
  QTextCursor cursor(this);
  cursor.movePosition(QTextCursor::End);
  cursor.insertBlock(OnPaper(block), block.charFormat());
  neighbour_ = cursor.block();
}

// What stands between a paragraph and the one before.
void PrintedPiece::CopyEnd(const QTextBlock& block, int to, QTextCursor& cursor) const {
  const int begin = block.position();
  const QTextTable* const row = TableAt(source_, begin);
  const bool isInRow = IsCopied(row, to);
  const bool beginsCell = isInRow && begin == BeginOfCell(*row, CellAt(*row, begin));
  const bool isBehindRow = !row && IsCopied(TableAt(source_, begin - 1), to);
  if (beginsCell && begin == row->firstPosition())
    InsertRow(cursor, RowOf(*row), sheet_.width());
  else if (beginsCell || isBehindRow)
    cursor.setPosition(cursor.position() + 1);
  else
    return cursor.insertBlock(OnPaper(block), block.charFormat());
  cursor.setBlockFormat(OnPaper(block));
  cursor.setBlockCharFormat(block.charFormat());
}

void PrintedPiece::CopyText(const QTextBlock& block, int to, QTextCursor& cursor) {
  for (auto part = block.begin(); !part.atEnd(); ++part) {
    const QTextFragment fragment = part.fragment();
    const int begin = std::max(from_, fragment.position());
    const int end = std::min(to, fragment.position() + fragment.length());
    const bool beginsParagraph = begin == block.position();
    if (begin < end)
      CopyLetters(fragment.text().mid(begin - fragment.position(), end - begin),
                  Fitting(fragment.charFormat(), cursor, beginsParagraph), cursor);
  }
}

// A picture in the place of letters is followed by signs that nobody sees: positions stay what they are.
void PrintedPiece::CopyLetters(const QString& text, const QTextCharFormat& format, QTextCursor& cursor) {
  if (!MayHaveColors(text)) return cursor.insertText(text, format);
  QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, text);
  for (qsizetype at = 0, end = letters.toNextBoundary(); end > at; at = end, end = letters.toNextBoundary()) {
    const QString letter = text.mid(at, end - at);
    QSizeF size;
    const QImage image = MayHaveColors(letter) ? ColorLetter(letter, format, size) : QImage();
    if (image.isNull()) {
      cursor.insertText(letter, format);
      continue;
    }
    QTextImageFormat picture;
    picture.merge(format);
    picture.setObjectType(QTextFormat::ImageObject);
    picture.setName(QStringLiteral("letter:%1").arg(image.cacheKey()));
    picture.setWidth(size.width());
    picture.setHeight(size.height());
    addResource(QTextDocument::ImageResource, QUrl(picture.name()), image);
    cursor.insertText(QString(QChar::ObjectReplacementCharacter), picture);
    cursor.insertText(QString(letter.size() - 1, QChar(HiddenSign)), format);
  }
}

// On the screen one scrolls to see the rest of a large picture. On paper it is made as small as need be. One
// that has other letters before it goes into a line of its own, without the first line's indent.
QTextCharFormat PrintedPiece::Fitting(const QTextCharFormat& format, const QTextCursor& cursor,
                                      bool beginsParagraph) const {
  if (!format.isImageFormat()) return format;
  const QTextBlockFormat paragraph = cursor.blockFormat();
  const QTextTable* const row = cursor.currentTable();
  const double width = row ? RoomInCell(*row, cursor.position(), sheet_.width()) : sheet_.width();
  QTextImageFormat image = format.toImageFormat();
  const double indent = beginsParagraph ? std::max(0.0, paragraph.textIndent()) : 0;
  const double room = width - paragraph.leftMargin() - paragraph.rightMargin() - indent;
  const QTextBlock block = cursor.block();
  const double borders = row ? 0 : RoomOfBorder(block, TopSide) + RoomOfBorder(block, BottomSide);
  const double height = std::max(1.0, TallestPicture * sheet_.height() - borders);
  const double share =
      std::min({1.0, std::max(1.0, std::floor(room)) / image.width(), height / image.height()});
  image.setWidth(image.width() * share);
  image.setHeight(image.height() * share);
  return image;
}

bool PrintedPiece::CanBeLaidOut() const {
  return HeightBound(*this, sheet_.width()).OfAll() < TallestPage;
}

void PrintedPiece::LayOut() {
  setTextWidth(sheet_.width());
  documentLayout()->documentSize();  // which is known when all of it is laid out
}

std::vector<PrintedLine> PrintedPiece::Lines() const {
  std::vector<PrintedLine> lines;
  for (QTextBlock block = begin(); block.isValid() && block != neighbour_; block = block.next()) {
    if (block.length() == 1 && block.blockFormat().hasProperty(BeforeRow)) continue;
    const QTextLayout& layout = *block.layout();
    const QPointF place = documentLayout()->blockBoundingRect(block).topLeft();
    const QTextTable* const row = TableAt(*this, block.position());
    for (int i = 0; i < layout.lineCount(); ++i) {
      const QTextLine line = layout.lineAt(i);
      const double top = place.y() + line.y();
      const int position = InSource(block.position() + line.textStart());
      lines.push_back({block, line, position, place, top, top + line.height(), row});
    }
  }
  return lines;
}

QVariant PrintedPiece::loadResource(int, const QUrl& name) {
  return DrawnPicture(source_, name);
}

}  // namespace richtext
