#include "richtext/textdocument/BorderLine.h"

#include <algorithm>
#include <cmath>

#include <QtGui/QPainter>

#include "richtext/document/Twips.h"
#include "richtext/textdocument/Formats.h"

namespace richtext {
namespace {

// Times the line's width; nothing for a line without gaps.
QVector<qreal> DashesOf(BorderKind kind) {
  switch (kind) {
    case BorderKind::Dotted:
      return {1, 2};
    case BorderKind::Dashed:
      return {4, 3};
    case BorderKind::SmallDashes:
      return {2, 2};
    case BorderKind::DashDot:
      return {4, 2, 1, 2};
    case BorderKind::DashDotDot:
      return {4, 2, 1, 2, 1, 2};
    default:
      return {};
  }
}

QPen PenOf(const Border& border) {
  QPen pen(ToColor(border.color.value_or(0)));
  const double told = std::max(1.0, std::round(border.width / TwipsPerPixel));
  pen.setWidthF(border.kind == BorderKind::Thick      ? 2 * told
                : border.kind == BorderKind::Hairline ? 0.5
                                                      : told);
  pen.setCapStyle(Qt::SquareCap);
  if (const QVector<qreal> dashes = DashesOf(border.kind); !dashes.isEmpty()) pen.setDashPattern(dashes);
  if (pen.style() == Qt::CustomDashLine) pen.setCapStyle(Qt::FlatCap);
  return pen;
}

}  // namespace

double WidthOf(const Border& border) {
  if (!IsShown(border)) return 0;
  const int lines = border.kind == BorderKind::Triple ? 5 : border.kind == BorderKind::Double ? 3 : 1;
  return lines * PenOf(border).widthF();
}

void DrawBorder(QPainter& painter, const Border& border, QLineF line) {
  if (!IsShown(border)) return;
  const QPen pen = PenOf(border);
  painter.setPen(pen);
  const bool isFlat = line.dy() == 0;
  const auto draw = [&](double aside) {
    painter.drawLine(line.translated(isFlat ? 0 : aside, isFlat ? aside : 0));
  };
  const double gap = 2 * pen.widthF();
  if (border.kind == BorderKind::Double) return draw(-gap / 2), draw(gap / 2);
  draw(0);
  if (border.kind == BorderKind::Triple) draw(-gap), draw(gap);
}

}  // namespace richtext
