// The text goes to the paper in pieces (see PrintedPiece.h). A piece begins with what was printed last, so
// that the space between two paragraphs is measured and not guessed, and ends with a paragraph. A paragraph
// that is too long for a piece is cut where a line begins.
#include "richtext/box/Printing.h"

#include <algorithm>
#include <memory>
#include <vector>

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextLayout>

#include "richtext/box/Paper.h"
#include "richtext/box/PrintedPiece.h"
#include "richtext/textdocument/Labels.h"

namespace richtext {
namespace {

// Positions of a piece: enough paragraphs to be worth their layout, and few enough to be forgotten soon.
constexpr int PieceLength = 16 * 1024;
// A paragraph that is longer than so many pieces is cut.
constexpr int LongParagraph = 16;

struct Line {
  QTextBlock block;  // of the piece
  QTextLine line;
  int position;  // of its first letter, in the source
  double top;    // in the piece, as is the bottom
  double bottom;
};

constexpr double PointsPerInch = 72;

// The toolkit's measure of a pixel, which is also an image's that names none.
double PixelsPerInch() {
  return QImage(1, 1, QImage::Format_Mono).logicalDpiY();
}

// The sheets of the paper, on which the painter counts in the box's pixels.
class Sheets {
 public:
  Sheets(Paper& paper, QPainter& painter)
      : paper_(paper), painter_(painter), size_(paper.Area() / PointsPerInch * PixelsPerInch()) {
    painter.scale(paper.Device().logicalDpiX() / PixelsPerInch(),
                  paper.Device().logicalDpiY() / PixelsPerInch());
  }

  const QSizeF& Size() const { return size_; }
  QPainter& Painter() { return painter_; }
  bool Failed() const { return failed_; }

  // Makes room for a line, `gap` below the one before it, and gives its top. The gap is lost at the top of a
  // sheet.
  double Place(double gap, double height) {
    if (!blank_ && used_ + gap + height > size_.height()) {
      failed_ = !paper_.NextSheet();
      blank_ = true;
    }
    const double top = blank_ ? 0 : used_ + gap;
    blank_ = false;
    used_ = top + height;
    return top;
  }

 private:
  Paper& paper_;
  QPainter& painter_;
  QSizeF size_;
  double used_ = 0;
  bool blank_ = true;
  bool failed_ = false;
};

class Printing {
 public:
  Printing(const QTextCursor& selection, Paper& paper, QPainter& painter)
      : source_(*selection.document()),
        sheets_(paper, painter),
        labels_(source_.findBlock(selection.selectionStart())),
        context_(selection.selectionStart()),
        at_(selection.selectionStart()),
        end_(selection.selectionEnd()) {}

  bool Print() {
    while (at_ < end_ && !sheets_.Failed()) PrintPiece();
    return !sheets_.Failed();
  }

 private:
  void PrintPiece() {
    int length = PieceLength;
    auto piece = MakePiece(length);
    while (!piece->CanBeLaidOut() && length > 1) {
      length /= 2;
      LessContext(length);
      piece = MakePiece(length);
    }
    piece->LayOut();
    std::vector<Line> lines = LinesOf(*piece);
    GoOnBehind(lines, PieceEnd(length));
    Draw(lines);
  }

  std::unique_ptr<PrintedPiece> MakePiece(int length) const {
    return std::make_unique<PrintedPiece>(source_, context_, PieceEnd(length), sheets_.Size());
  }

  // The end of the paragraph before will do. A line before in the same paragraph counts as a whole or not at
  // all.
  void LessContext(int length) {
    const bool isCut = source_.findBlock(at_).position() < at_;
    context_ = isCut ? at_ : std::max(context_, at_ - length);
  }

  // As many whole paragraphs as fit in `length` positions, one at least, or the part of a long one.
  int PieceEnd(int length) const {
    QTextBlock block = source_.findBlock(at_);
    const int longest = at_ + LongParagraph * length;
    if (block.position() + block.length() > longest) return std::min(longest, end_);
    int to = block.position() + block.length();
    for (block = block.next(); block.isValid() && block.position() + block.length() <= at_ + length;
         block = block.next())
      to = block.position() + block.length();
    return std::min(to, end_);
  }

  std::vector<Line> LinesOf(const PrintedPiece& piece) const {
    std::vector<Line> lines;
    for (QTextBlock block = piece.begin(); block.isValid(); block = block.next()) {
      const QTextLayout& layout = *block.layout();
      for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        const double top = layout.position().y() + line.y();
        lines.push_back(
            {block, line, context_ + block.position() + line.textStart(), top, top + line.height()});
      }
    }
    return lines;
  }

  // Sets where the next piece begins. The last line of a paragraph that is cut may be cut itself: it is left
  // to the next piece, which takes the line before it as its context.
  void GoOnBehind(std::vector<Line>& lines, int to) {
    const QTextBlock last = source_.findBlock(to - 1);
    const bool isCut = to < end_ && to < last.position() + last.length();
    const auto count = lines.size();
    if (isCut && count > 2 && lines[count - 2].position >= at_) {
      from_ = at_;
      context_ = lines[count - 2].position;
      at_ = lines[count - 1].position;
      lines.pop_back();
      return;
    }
    from_ = at_;
    at_ = to;
    context_ = isCut ? to : std::max(last.position(), to - PieceLength);
  }

  void Draw(const std::vector<Line>& lines) {
    double bottom = 0;
    for (const Line& line : lines) {
      if (line.position >= from_) DrawLine(line, sheets_.Place(line.top - bottom, line.bottom - line.top));
      bottom = line.bottom;
    }
  }

  void DrawLine(const Line& line, double top) {
    if (sheets_.Failed()) return;
    QPainter& painter = sheets_.Painter();
    const QPointF place(line.block.layout()->position().x(), top - line.line.y());
    painter.setPen(Qt::black);
    line.line.draw(&painter, place);
    const QTextBlock block = source_.findBlock(line.position);
    if (block.blockNumber() == counted_) return;
    counted_ = block.blockNumber();
    const QString label = labels_.Count(block);
    if (!label.isEmpty() && line.position == block.position()) DrawLabel(painter, line.block, place, label);
  }

  const QTextDocument& source_;
  Sheets sheets_;
  LabelCounter labels_;
  int counted_ = -1;  // number of the block that was counted last
  int context_;       // where the piece in hand begins
  int from_ = 0;      // where what it is to print begins
  int at_;            // where the next one's does
  int end_;
};

}  // namespace

bool PrintSelection(const QTextCursor& selection, Paper& paper) {
  QPainter painter;
  if (!painter.begin(&paper.Device())) return false;
  const bool printed = Printing(selection, paper, painter).Print();
  return painter.end() && printed && paper.IsWhole();
}

}  // namespace richtext
