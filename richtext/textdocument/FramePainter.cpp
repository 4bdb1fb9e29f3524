#include "richtext/textdocument/FramePainter.h"

#include <algorithm>

#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QPainter>
#include <QtGui/QTextDocument>
#include <QtGui/QTextLayout>

#include "richtext/document/Document.h"
#include "richtext/document/Twips.h"
#include "richtext/textdocument/BorderLine.h"
#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/PackedRow.h"
#include "richtext/textdocument/Paragraphs.h"
#include "richtext/textdocument/RowTables.h"
#include "richtext/textdocument/ShownBlocks.h"

namespace richtext {
namespace {

constexpr double RoomOfLabel = 32;  // pixels, beside an item of a list
constexpr double NearestLine = 2;   // pixels from a cell's or the page's edge
constexpr int MostBeside = 40;      // paragraphs up and down that a frame's width is reckoned from

ParagraphBorders BordersOf(const QTextBlock& block) {
  return UnpackedBorders(block.blockFormat().property(BordersOfParagraph).toByteArray());
}

// Of two paragraphs of which one follows the other; nothing parts them but the end of the first.
bool AreNeighbours(const QTextBlock& first, const QTextBlock& second) {
  return first.isValid() && second.isValid() && second.isVisible() &&
         first.document()->characterAt(second.position() - 1) == QChar::ParagraphSeparator;
}

QRectF LettersOf(const QTextBlock& block) {
  return block.document()->documentLayout()->blockBoundingRect(block);
}

double Room(const ParagraphBorder& border) {
  return IsShown(border.line) ? border.space / TwipsPerPixel + WidthOf(border.line) / 2 : 0;
}

// From where the lines begin to where they end, whatever the first one's indent is.
QRectF WithoutIndent(const QTextBlock& block, QRectF letters) {
  const QTextBlockFormat format = block.blockFormat();
  if (block.layout()->lineCount() == 0) return letters;
  const QTextLine first = block.layout()->lineAt(0);
  const double indent = std::max(0.0, format.textIndent());
  const bool isRightToLeft = block.textDirection() == Qt::RightToLeft;
  double left = letters.left() + first.x() - (isRightToLeft ? 0 : indent);
  double right = letters.left() + first.x() + first.width() + (isRightToLeft ? indent : 0);
  if (IsListItem(format)) (isRightToLeft ? right : left) += isRightToLeft ? RoomOfLabel : -RoomOfLabel;
  return {QPointF(left, letters.top()), QPointF(right, letters.bottom())};
}

// What a paragraph's lines and labels leave free at both sides.
struct Free {
  double left, right;  // pixels
};
Free FreeBeside(const QTextBlock& block) {
  const QTextBlockFormat format = block.blockFormat();
  Free free{format.leftMargin(), format.rightMargin()};
  double& begin = block.textDirection() == Qt::RightToLeft ? free.right : free.left;
  begin += std::min(0.0, format.textIndent()) - (IsListItem(format) ? RoomOfLabel : 0);
  return free;
}

// What the frame around the block leaves free: as little as any paragraph in it.
Free FreeBesideFrame(const QTextBlock& block) {
  Free least = FreeBeside(block);
  const auto take = [&](const QTextBlock& other) {
    const Free free = FreeBeside(other);
    least = {std::min(least.left, free.left), std::min(least.right, free.right)};
  };
  int steps = 0;
  for (QTextBlock at = block; steps < MostBeside && AreInOneFrame(at.previous(), at); ++steps)
    take(at = at.previous());
  steps = 0;
  for (QTextBlock at = block; steps < MostBeside && AreInOneFrame(at, at.next()); ++steps)
    take(at = at.next());
  return least;
}

}  // namespace

bool AreInOneFrame(const QTextBlock& first, const QTextBlock& second) {
  if (!AreNeighbours(first, second)) return false;
  const QTextBlockFormat one = first.blockFormat(), other = second.blockFormat();
  const bool areAlike = one.property(BordersOfParagraph) == other.property(BordersOfParagraph) &&
                        one.background() == other.background();
  return areAlike && (IsListItem(one) || IsListItem(other) ||
                      (one.leftMargin() == other.leftMargin() && one.rightMargin() == other.rightMargin()));
}

double RoomOfBorder(const QTextBlock& block, Side side) {
  const ParagraphBorder border = BordersOf(block)[side];
  return IsShown(border.line) ? border.space / TwipsPerPixel + WidthOf(border.line) : 0;
}

bool HasFrame(const QTextBlock& block) {
  const QTextBlockFormat format = block.blockFormat();
  return format.hasProperty(BordersOfParagraph) || format.background().style() != Qt::NoBrush;
}

FramePart FrameOf(const QTextBlock& block) {
  const QTextBlock before = block.previous(), behind = block.next();
  const ParagraphBorders borders = BordersOf(block);
  const QRectF letters = LettersOf(block);
  FramePart part{WithoutIndent(block, letters), !AreInOneFrame(before, block), !AreInOneFrame(block, behind)};
  const Free own = FreeBeside(block), all = FreeBesideFrame(block);
  part.place.adjust(all.left - own.left - Room(borders[LeftSide]), 0,
                    own.right - all.right + Room(borders[RightSide]), 0);
  const bool isBehindRow = block.document()->characterAt(block.position() - 1) == QChar(RowEndSign);
  const double above = AreNeighbours(before, block) ? LettersOf(before).bottom()
                       : isBehindRow                ? letters.top() + 1  // below the row's border
                                                    : letters.top() - NearestLine;
  const double below =
      AreNeighbours(block, behind) ? LettersOf(behind).top() : letters.bottom() + NearestLine;
  part.place.setTop(part.begins ? std::max(above, letters.top() - Room(borders[TopSide])) : above);
  if (part.ends) part.place.setBottom(std::min(below, letters.bottom() + Room(borders[BottomSide])));
  return part;
}

void DrawGround(QPainter& painter, const QTextBlock& block, const FramePart& part) {
  const QBrush ground = block.blockFormat().background();
  if (ground.style() != Qt::NoBrush) painter.fillRect(part.place, ground);
}

void DrawBorders(QPainter& painter, const QTextBlock& block, const FramePart& part) {
  if (!block.blockFormat().hasProperty(BordersOfParagraph)) return;
  const ParagraphBorders borders = BordersOf(block);
  const QRectF& place = part.place;
  DrawBorder(painter, borders[LeftSide].line, {place.topLeft(), place.bottomLeft()});
  DrawBorder(painter, borders[RightSide].line, {place.topRight(), place.bottomRight()});
  if (part.begins) DrawBorder(painter, borders[TopSide].line, {place.topLeft(), place.topRight()});
  if (part.ends) DrawBorder(painter, borders[BottomSide].line, {place.bottomLeft(), place.bottomRight()});
}

void DrawFrames(QPainter& painter, const QTextDocument& document, const QRectF& shown, FrameDrawer draw) {
  for (QTextBlock block = FirstShown(document, shown); block.isValid() && block.isVisible();
       block = block.next()) {
    if (IsBelow(block, shown)) break;
    if (HasFrame(block) && block.layout()->lineCount() > 0) draw(painter, block, FrameOf(block));
  }
}

}  // namespace richtext
