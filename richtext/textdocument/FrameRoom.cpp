#include "richtext/textdocument/FrameRoom.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include "richtext/document/Twips.h"
#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/FramePainter.h"
#include "richtext/textdocument/Paragraphs.h"
#include "richtext/textdocument/Rows.h"

namespace richtext {
namespace {

bool HasRoom(const QTextBlock& block) {
  const QTextBlockFormat format = block.blockFormat();
  return format.hasProperty(BordersOfParagraph) && !IsInRow(format);
}

void ShowSpace(QTextBlockFormat& format, int margin, BoxProperty own, std::int32_t told, std::int32_t shown,
               double room) {
  const double all = std::min(shown / TwipsPerPixel, WidestPage) + room;
  format.clearProperty(own);
  format.clearProperty(margin);
  if (all > 0) format.setProperty(margin, all);
  if (std::lround(all * TwipsPerPixel) != told) format.setProperty(own, told);
}

QTextBlockFormat WithRoom(QTextBlockFormat format, double above, double below) {
  const ParagraphFormat told = FromBlockFormat(format);
  ShowSpace(format, QTextFormat::BlockTopMargin, SpaceBeforeOfDocument, told.spaceBefore,
            ShownSpaceBefore(told), above);
  ShowSpace(format, QTextFormat::BlockBottomMargin, SpaceAfterOfDocument, told.spaceAfter,
            ShownSpaceAfter(told), below);
  return format;
}

// The toolkit lets the larger of two spaces between paragraphs count: that above a frame holds the room of
// one that ends before it, too.
QTextBlockFormat Roomy(const QTextBlock& block) {
  const QTextBlock before = block.previous(), behind = block.next();
  const bool begins = !AreInOneFrame(before, block), ends = !AreInOneFrame(block, behind);
  const double beside = begins && HasRoom(before) ? RoomOfBorder(before, BottomSide) : 0;
  return WithRoom(block.blockFormat(), begins ? RoomOfBorder(block, TopSide) + beside : 0,
                  ends ? RoomOfBorder(block, BottomSide) : 0);
}

}  // namespace

void MakeRoomForFrames(QTextDocument& document, int from, int to) {
  QTextCursor cursor(&document);
  bool hasChanged = false;
  for (QTextBlock block = document.findBlock(from); block.isValid() && block.position() <= to;
       block = block.next()) {
    if (!HasRoom(block)) continue;
    const QTextBlockFormat roomy = Roomy(block);
    if (roomy == block.blockFormat()) continue;
    if (!hasChanged) cursor.joinPreviousEditBlock();
    hasChanged = true;
    cursor.setPosition(block.position());
    cursor.setBlockFormat(roomy);
  }
  if (hasChanged) cursor.endEditBlock();
}

}  // namespace richtext
