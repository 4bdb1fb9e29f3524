// The grounds of paragraphs, which the box and the paper have under the text, and their borders, which lie
// over the toolkit's own ground of lines. Neighbours of the same look and the same indents stand in one
// frame, and so do the items of a list with what is beside them: what is between them has their ground, and
// its borders are around them all. The toolkit knows the ground of lines alone, and no borders.
#pragma once

#include <QtCore/QRectF>
#include <QtGui/QTextBlock>

#include "richtext/document/Document.h"

class QPainter;

namespace richtext {

// Of a paragraph that is laid out, in the document's own pixels: its part of the frame. A border above or
// below keeps off the letters of the paragraph beside it, so that it may stand nearer than it is told to.
struct FramePart {
  QRectF place;
  bool begins = false, ends = false;  // with the frame's own border
};
bool HasFrame(const QTextBlock& block);
// Of two blocks of which one follows the other.
bool AreInOneFrame(const QTextBlock& first, const QTextBlock& second);
// What a border takes beside the letters, in pixels.
double RoomOfBorder(const QTextBlock& block, Side side);
FramePart FrameOf(const QTextBlock& block);

// The painter counts in the document's pixels.
void DrawGround(QPainter& painter, const QTextBlock& block, const FramePart& part);
void DrawBorders(QPainter& painter, const QTextBlock& block, const FramePart& part);

// Draws of the frames that can be seen what is one or the other's affair.
using FrameDrawer = void (*)(QPainter&, const QTextBlock&, const FramePart&);
void DrawFrames(QPainter& painter, const QTextDocument& document, const QRectF& shown, FrameDrawer draw);

}  // namespace richtext
