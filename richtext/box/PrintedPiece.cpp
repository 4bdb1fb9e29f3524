#include "richtext/box/PrintedPiece.h"

#include <algorithm>
#include <cmath>

#include <QtCore/QUrl>
#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QTextCursor>

#include "richtext/textdocument/PageHeight.h"
#include "richtext/textdocument/Paragraphs.h"
#include "richtext/textdocument/Pictures.h"

namespace richtext {
namespace {

constexpr double TallestPicture = 0.95;  // of the sheet: letters may hang below it in its line

}  // namespace

PrintedPiece::PrintedPiece(const QTextDocument& source, int from, int to, const QSizeF& sheet)
    : source_(source), from_(from), sheet_(sheet) {
  setUndoRedoEnabled(false);
  setDocumentMargin(0);
  setUseDesignMetrics(true);  // letters stand where they stand on the paper, and not on the screen's grid
  QTextOption option = source.defaultTextOption();
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  setDefaultTextOption(option);
  Copy(to);
}

// What the page tells, which the screen may show with smaller indents and lower lines.
QTextBlockFormat PrintedPiece::OnPaper(const QTextBlock& block) const {
  return ToBlockFormat(FromBlockFormat(block.blockFormat()), sheet_.width());
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
    if (block != first) cursor.insertBlock(OnPaper(block), block.charFormat());
    CopyText(block, to, cursor);
  }
  cursor.endEditBlock();
}

void PrintedPiece::CopyText(const QTextBlock& block, int to, QTextCursor& cursor) const {
  for (auto part = block.begin(); !part.atEnd(); ++part) {
    const QTextFragment fragment = part.fragment();
    const int begin = std::max(from_, fragment.position());
    const int end = std::min(to, fragment.position() + fragment.length());
    const bool beginsParagraph = begin == block.position();
    if (begin < end)
      cursor.insertText(fragment.text().mid(begin - fragment.position(), end - begin),
                        Fitting(fragment.charFormat(), cursor.blockFormat(), beginsParagraph));
  }
}

// On the screen one scrolls to see the rest of a large picture. On paper it is made as small as need be. One
// that has other letters before it goes into a line of its own, without the first line's indent.
QTextCharFormat PrintedPiece::Fitting(const QTextCharFormat& format, const QTextBlockFormat& paragraph,
                                      bool beginsParagraph) const {
  if (!format.isImageFormat()) return format;
  QTextImageFormat image = format.toImageFormat();
  const double indent = beginsParagraph ? std::max(0.0, paragraph.textIndent()) : 0;
  const double room = sheet_.width() - paragraph.leftMargin() - paragraph.rightMargin() - indent;
  const double share = std::min({1.0, std::max(1.0, std::floor(room)) / image.width(),
                                 TallestPicture * sheet_.height() / image.height()});
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
  for (QTextBlock block = begin(); block.isValid(); block = block.next()) {
    const QTextLayout& layout = *block.layout();
    for (int i = 0; i < layout.lineCount(); ++i) {
      const QTextLine line = layout.lineAt(i);
      const double top = layout.position().y() + line.y();
      const int position = InSource(block.position() + line.textStart());
      lines.push_back({block, line, position, top, top + line.height()});
    }
  }
  return lines;
}

QVariant PrintedPiece::loadResource(int, const QUrl& name) {
  return DrawnPicture(source_, name);
}

}  // namespace richtext
