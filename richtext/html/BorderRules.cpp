#include "richtext/html/BorderRules.h"

#include <algorithm>

#include "richtext/textdocument/Formats.h"

namespace richtext::html {
namespace {

QLatin1String StyleOf(BorderKind kind) {
  switch (kind) {
    case BorderKind::Double:
    case BorderKind::Triple:
      return QLatin1String("double");
    case BorderKind::Dotted:
      return QLatin1String("dotted");
    case BorderKind::Dashed:
    case BorderKind::SmallDashes:
    case BorderKind::DashDot:
    case BorderKind::DashDotDot:
      return QLatin1String("dashed");
    case BorderKind::Inset:
      return QLatin1String("inset");
    case BorderKind::Outset:
      return QLatin1String("outset");
    case BorderKind::Ridge:
      return QLatin1String("ridge");
    case BorderKind::Groove:
      return QLatin1String("groove");
    default:
      return QLatin1String("solid");
  }
}

}  // namespace

QString BorderRule(const char* side, const Border& border) {
  if (!IsShown(border)) return {};
  return QStringLiteral("border-%1: %2pt %3 %4; ")
      .arg(QLatin1String(side))
      .arg(std::max(border.width, 1) / 20.0)
      .arg(StyleOf(border.kind), ToColor(border.color.value_or(0)).name());
}

}  // namespace richtext::html
