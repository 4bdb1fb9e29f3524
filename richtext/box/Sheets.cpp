#include "richtext/box/Sheets.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>

#include "richtext/box/Paper.h"

namespace richtext {
namespace {

constexpr double PointsPerInch = 72;

// The toolkit's measure of a pixel, which is also an image's that names none.
double PixelsPerInch() {
  return QImage(1, 1, QImage::Format_Mono).logicalDpiY();
}

}  // namespace

Sheets::Sheets(Paper& paper, QPainter& painter)
    : paper_(paper), painter_(painter), size_(paper.Area() / PointsPerInch * PixelsPerInch()) {
  painter.scale(paper.Device().logicalDpiX() / PixelsPerInch(),
                paper.Device().logicalDpiY() / PixelsPerInch());
}

bool Sheets::HasRoom(double gap, double height) const {
  return blank_ || used_ + gap + height <= size_.height();
}

void Sheets::Begin() {
  failed_ = !paper_.NextSheet();
  blank_ = true;
}

double Sheets::Place(double gap, double height) {
  if (!HasRoom(gap, height)) Begin();
  const double top = blank_ ? 0 : used_ + gap;
  blank_ = false;
  used_ = top + height;
  return top;
}

}  // namespace richtext
