// The text goes to the paper in pieces (see PrintedPiece.h). A piece begins with what was printed last, so
// that the space between two paragraphs is measured and not guessed, and ends with a paragraph. A paragraph
// that is too long for a piece is cut where a line begins. A row goes onto one sheet where it fits on one; of
// a higher one each sheet has whole lines. A table's head rows come again on each sheet where it goes on.
//
// All positions in this file are the source's. Those of a piece, which begin with 0, are its own affair.
#include "richtext/box/Printing.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include <QtGui/QPainter>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>

#include "richtext/box/HeadRows.h"
#include "richtext/box/Paper.h"
#include "richtext/box/PrintedLabels.h"
#include "richtext/box/PrintedPiece.h"
#include "richtext/box/Sheets.h"
#include "richtext/textdocument/FramePainter.h"
#include "richtext/textdocument/Labels.h"
#include "richtext/textdocument/LeaderPainter.h"
#include "richtext/textdocument/RowPainter.h"
#include "richtext/textdocument/RowTables.h"
#include "richtext/textdocument/Rows.h"

namespace richtext {
namespace {

// Positions of a piece: enough paragraphs to be worth their layout, and few enough to be forgotten soon.
constexpr int PieceLength = 16 * 1024;
// A paragraph that is longer than so many pieces is cut.
constexpr int LongParagraph = 16;

class Printing {
 public:
  Printing(const QTextCursor& selection, Paper& paper, QPainter& painter)
      : source_(*selection.document()),
        sheets_(paper, painter),
        heads_(source_, sheets_.Size()),
        labels_(source_, selection.selectionStart()),
        from_(selection.selectionStart()),
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
    std::vector<PrintedLine> lines = piece->Lines();
    const int begin = at_;
    GoOnBehind(lines, PieceEnd(length));
    labels_.Tell(lines);
    Draw(lines, begin);
  }

  std::unique_ptr<PrintedPiece> MakePiece(int length) const {
    const int to = PieceEnd(length);
    const auto behind = to < end_ ? PrintedPiece::Behind::MoreText : PrintedPiece::Behind::Nothing;
    return std::make_unique<PrintedPiece>(source_, context_, to, sheets_.Size(), behind);
  }

  // The end of the paragraph before will do. A line before in the same paragraph counts as a whole or not at
  // all.
  void LessContext(int length) {
    const bool isCut = source_.findBlock(at_).position() < at_;
    context_ = isCut ? at_ : std::max(context_, at_ - length);
  }

  // As many whole paragraphs as fit in `length` positions, one at least, or the part of a long one.
  int PieceEnd(int length) const {
    const int longest = at_ + LongParagraph * length;
    int to = EndOf(at_);
    if (to > longest) return std::min(longest, end_);
    for (int next = to; next <= at_ + length && to < end_; next = EndOf(next)) to = next;
    return std::min(to, end_);
  }

  // Of the paragraph or the row at a position.
  int EndOf(int position) const {
    if (const QTextTable* const row = TableAt(source_, position)) return row->lastPosition() + 1;
    const QTextBlock block = source_.findBlock(position);
    const int end = block.position() + block.length();
    const QTextTable* const row = TableAt(source_, end);
    return row ? row->lastPosition() + 1 : end;
  }

  // Sets where the next piece begins, behind one that ends at `to`. The last line of a paragraph that is cut
  // may be cut itself: it is left to the next piece, which takes the line before it as its context.
  void GoOnBehind(std::vector<PrintedLine>& lines, int to) {
    const QTextBlock last = source_.findBlock(to - 1);
    const bool isCut = to < end_ && to < last.position() + last.length();
    const auto count = lines.size();
    if (isCut && count > 2 && lines[count - 2].position >= at_) {
      context_ = lines[count - 2].position;
      at_ = lines[count - 1].position;
      lines.pop_back();
      return;
    }
    at_ = to;
    const QTextTable* const row = TableAt(source_, to - 1);
    const bool isWhole = row && to > row->lastPosition();
    const int begin = isWhole ? row->firstPosition() - 1 : last.position();
    context_ = isCut ? to : std::max(begin, to - PieceLength);
  }

  // The lines before `begin` were printed before: they only tell how far below them the next one stands.
  void Draw(const std::vector<PrintedLine>& lines, int begin) {
    double bottom = 0;
    for (std::size_t at = 0; at < lines.size();) {
      const PrintedLine& line = lines[at++];
      const bool isNew = line.position >= begin;
      NoteTable(line);
      if (!line.row) {
        const auto [above, below] = BordersAround(line);
        const double height = above + line.bottom - line.top + below;
        const double gap = line.top - above - bottom;
        if (isNew) DrawLine(line, sheets_.Place(HeadBefore(height, gap), height) + above);
        bottom = line.bottom + below;
        continue;
      }
      std::vector<PrintedLine> row{line};
      while (at < lines.size() && lines[at].row == line.row) row.push_back(lines[at++]);
      const RowPlace place = PlaceOf(*line.row);
      if (isNew) DrawRow(row, place, HeadBefore(place.bottom - place.top, place.top - bottom));
      bottom = place.bottom;
    }
  }

  // What the borders take that a frame has above and below the line, which no sheet parts from it.
  std::pair<double, double> BordersAround(const PrintedLine& line) const {
    if (!HasFrame(line.block)) return {};
    const FramePart part = FrameBeside(line, line.top);
    return {part.begins ? RoomOfBorder(line.block, TopSide) : 0,
            part.ends ? RoomOfBorder(line.block, BottomSide) : 0};
  }

  // A row that is shown in columns is of the table before it.
  void NoteTable(const PrintedLine& line) {
    const QTextBlock paragraph = source_.findBlock(line.position);
    if (TableAt(source_, line.position))
      row_ = line.position;
    else if (!IsInRow(paragraph.blockFormat()) && !IsGap(paragraph))
      row_ = -1;
  }

  // Where a row begins a sheet, its table's head stands above it, unless that leaves no room. Returns how far
  // below what was printed last the row stands.
  double HeadBefore(double height, double gap) {
    const int last = row_;
    const QTextTable* const row = last >= 0 ? TableAt(source_, last) : nullptr;
    if (!row || sheets_.HasRoom(gap, height)) return gap;
    const HeadOfTable* const head = heads_.Of(*row);
    if (!head || head->height + height > sheets_.Size().height()) return gap;
    sheets_.Begin();
    Draw(head->lines, 0);
    row_ = last;
    return 0;
  }

  // In parts, each as high as a sheet at most. The lines of one cell need not end where those of another do:
  // what a sheet has no room for is left to the next part, which begins with the highest line of these.
  void DrawRow(std::vector<PrintedLine> lines, const RowPlace& row, double gap) {
    const double most = sheets_.Size().height();
    const QTextTable& table = *lines.front().row;
    for (double begin = row.top; (begin < row.bottom || !lines.empty()) && !sheets_.Failed(); gap = 0) {
      const auto left = std::stable_partition(lines.begin(), lines.end(), [&](const PrintedLine& line) {
        return line.bottom <= begin + most || line.top <= begin;
      });
      double end = std::max(begin, std::min(row.bottom, begin + most));
      for (auto line = lines.begin(); line != left; ++line)
        end = std::max(end, std::min(line->bottom, begin + most));
      const double top = sheets_.Place(gap, end - begin);
      const RowPlace part{top, top + end - begin, row.edges};
      DrawGrounds(sheets_.Painter(), table, part);
      for (auto line = lines.begin(); line != left; ++line) DrawLine(*line, top + line->top - begin);
      DrawBorders(sheets_.Painter(), table, part);
      begin = end;
      lines.erase(lines.begin(), left);
      for (const PrintedLine& line : lines) begin = std::min(begin, line.top);
    }
  }

  void DrawLine(const PrintedLine& line, double top) {
    if (sheets_.Failed()) return;
    QPainter& painter = sheets_.Painter();
    const QPointF place(line.place.x(), top - line.line.y());
    const bool hasFrame = HasFrame(line.block);
    const FramePart frame = hasFrame ? FrameBeside(line, top) : FramePart();
    if (hasFrame) DrawGround(painter, line.block, frame);
    painter.setPen(Qt::black);
    line.line.draw(&painter, place);
    DrawLeaders(painter, line.block, line.line, place);
    if (hasFrame) DrawBorders(painter, line.block, frame);
    if (!line.label.isEmpty()) DrawLabel(painter, line.block, place, line.label);
  }

  // The part of its paragraph's frame that the line stands in. A piece may hold a part of the paragraph.
  FramePart FrameBeside(const PrintedLine& line, double top) const {
    const QTextBlock paragraph = source_.findBlock(line.position);
    const int behind = line.position + line.line.textLength();
    const bool isFirst =
        line.line.lineNumber() == 0 && line.position <= std::max(from_, paragraph.position());
    const bool isLast = line.line.lineNumber() == line.block.layout()->lineCount() - 1 &&
                        behind >= std::min(end_, paragraph.position() + paragraph.length() - 1);
    FramePart part = FrameOf(line.block);
    part.begins = part.begins && isFirst;
    part.ends = part.ends && isLast;
    if (!isFirst) part.place.setTop(line.top);
    if (!isLast) part.place.setBottom(line.bottom);
    part.place.translate(0, top - line.top);
    part.place.setTop(std::max(0.0, part.place.top()));
    return part;
  }

  const QTextDocument& source_;
  Sheets sheets_;
  HeadRows heads_;
  PrintedLabels labels_;
  const int from_;
  int row_ = -1;  // the position of the row whose table goes on, where it does
  int context_;   // where the next piece begins, with what was printed last
  int at_;        // where what it is to print begins
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
