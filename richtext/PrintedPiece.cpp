#include "richtext/PrintedPiece.h"

#include <algorithm>

#include <QtCore/QUrl>
#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QImage>
#include <QtGui/QTextCursor>

#include "richtext/BoxDocument.h"
#include "richtext/BoxPictures.h"
#include "richtext/PageHeight.h"

namespace richtext {
namespace {

constexpr double TallestPiece = 5'000'000;  // dots; well below what the toolkit can lay out
constexpr double TallestPicture = 0.95;     // of the paper: letters may hang below it in its line

// The toolkit's measure of a pixel, which is also an image's that names none.
double PixelsPerInch() {
  return QImage(1, 1, QImage::Format_Mono).logicalDpiY();
}

}  // namespace

PrintedPiece::PrintedPiece(const QTextDocument& source, int from, int to, QPaintDevice& device)
    : source_(source),
      scale_(device.logicalDpiY() / PixelsPerInch()),
      widthInDots_(device.width()),
      area_(QSizeF(device.width(), device.height()) / scale_) {
  setUndoRedoEnabled(false);
  setDocumentMargin(0);
  setUseDesignMetrics(true);  // lines break at the same place whatever the resolution
  QTextOption option = source.defaultTextOption();
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  setDefaultTextOption(option);
  Copy(from, to);
  documentLayout()->setPaintDevice(&device);
}

void PrintedPiece::Copy(int from, int to) {
  QTextCursor cursor(this);
  cursor.beginEditBlock();
  const QTextBlock first = source_.findBlock(from);
  cursor.setBlockFormat(FormatOf(first, from));
  cursor.setBlockCharFormat(first.charFormat());
  for (QTextBlock block = first; block.isValid() && block.position() < to; block = block.next()) {
    if (block != first) cursor.insertBlock(block.blockFormat(), block.charFormat());
    for (auto part = block.begin(); !part.atEnd(); ++part) {
      const QTextFragment fragment = part.fragment();
      const int begin = std::max(from, fragment.position());
      const int end = std::min(to, fragment.position() + fragment.length());
      if (begin >= end) continue;
      cursor.insertText(fragment.text().mid(begin - fragment.position(), end - begin),
                        Fitting(fragment.charFormat(), block.blockFormat()));
    }
  }
  cursor.endEditBlock();
}

QTextBlockFormat PrintedPiece::FormatOf(const QTextBlock& block, int from) const {
  QTextBlockFormat format = block.blockFormat();
  if (from > block.position()) format.setTextIndent(0);
  return format;
}

// On the screen one scrolls to see the rest of a large picture. On paper it is made as small as need be.
QTextCharFormat PrintedPiece::Fitting(const QTextCharFormat& format,
                                      const QTextBlockFormat& paragraph) const {
  if (!format.isImageFormat()) return format;
  QTextImageFormat image = format.toImageFormat();
  const double room = area_.width() - paragraph.leftMargin() - paragraph.rightMargin();
  const double share =
      std::min({1.0, std::max(1.0, room) / image.width(), TallestPicture * area_.height() / image.height()});
  image.setWidth(image.width() * share);
  image.setHeight(image.height() * share);
  return image;
}

bool PrintedPiece::CanBeLaidOut() const {
  return EstimatedHeight(TakeDocument(*this)) * scale_ < TallestPiece;
}

void PrintedPiece::LayOut() {
  setTextWidth(widthInDots_);
  documentLayout()->documentSize();  // which is known when all of it is laid out
}

QVariant PrintedPiece::loadResource(int, const QUrl& name) {
  return DrawnPicture(source_, name);
}

}  // namespace richtext
