#include "richtext/document/Document.h"

#include <algorithm>

#include "richtext/document/Limits.h"

namespace richtext {
namespace {

std::int32_t ShownSpace(bool isAutomatic, std::int32_t told, const ListFormat& list) {
  if (!isAutomatic) return told;
  return list.kind == ListKind::None ? AutoSpace : 0;
}

}  // namespace

std::int32_t ShownSpaceBefore(const ParagraphFormat& format) {
  return ShownSpace(format.autoBefore, format.spaceBefore, format.list);
}

std::int32_t ShownSpaceAfter(const ParagraphFormat& format) {
  return ShownSpace(format.autoAfter, format.spaceAfter, format.list);
}

ParagraphBorders FittingBorders(ParagraphBorders borders) {
  for (ParagraphBorder& border : borders) {
    if (!IsShown(border.line)) border = {};
    border.line.width = std::clamp(border.line.width, 0, MaxBorder);
    border.space = std::clamp(border.space, 0, MaxBorderSpace);
  }
  return borders;
}

std::size_t RoomForTabs(const ParagraphBorders& borders) {
  const auto sides = std::count_if(borders.begin(), borders.end(),
                                   [](const ParagraphBorder& border) { return IsShown(border.line); });
  return MaxTabStops - TabStopsOfBorder * static_cast<std::size_t>(sides);
}

Document EmptyDocument() {
  Document document;
  document.paragraphs.push_back({});
  document.formats.push_back({});
  document.paragraphFormats.push_back({});
  return document;
}

}  // namespace richtext
