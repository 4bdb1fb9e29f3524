#include "richtext/html/FrameTags.h"

#include <algorithm>
#include <utility>

#include "richtext/html/BorderRules.h"
#include "richtext/textdocument/Formats.h"

namespace richtext::html {
namespace {

bool AreInOneFrame(const ParagraphFormat& one, const ParagraphFormat& other) {
  return one.borders == other.borders && one.ground == other.ground && one.leftIndent == other.leftIndent &&
         one.rightIndent == other.rightIndent;
}

QString Points(std::int32_t twips) {
  return QString::number(twips / 20.0) + QLatin1String("pt");
}

// The indents of its paragraphs begin within the borders.
QString FrameRules(const ParagraphFormat& format) {
  const auto margin = [&](Side side, std::int32_t indent) {
    const ParagraphBorder& border = format.borders[side];
    return Points(std::max(0, indent - border.space - border.line.width));
  };
  QString rules = QLatin1String("margin: 0 ") + margin(RightSide, format.rightIndent) + QLatin1String(" 0 ") +
                  margin(LeftSide, format.leftIndent) + QLatin1String("; ");
  for (std::size_t side = 0; side < format.borders.size(); ++side) {
    const ParagraphBorder& border = format.borders[side];
    if (!IsShown(border.line)) continue;
    rules += BorderRule(SideNames[side], border.line);
    rules += QStringLiteral("padding-%1: %2; ").arg(QLatin1String(SideNames[side]), Points(border.space));
  }
  if (format.ground) rules += QStringLiteral("background-color: %1; ").arg(ToColor(*format.ground).name());
  return rules.trimmed();
}

}  // namespace

QString FrameTags::Begin(const ParagraphFormat& format) {
  if (open_ || format.borders == ParagraphBorders()) return {};
  open_ = &format;
  return QLatin1String("<div style=\"") + FrameRules(format) + QLatin1String("\">");
}

QString FrameTags::End() {
  const bool isOpen = std::exchange(open_, nullptr) != nullptr;
  return isOpen ? QStringLiteral("</div>") : QString();
}

QString FrameTags::EndBefore(const ParagraphFormat& format) {
  return open_ && !AreInOneFrame(*open_, format) ? End() : QString();
}

}  // namespace richtext::html
