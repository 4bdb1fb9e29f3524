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

std::vector<TabStop> FittingTabs(std::vector<TabStop> tabs, const ParagraphBorders& borders) {
  const auto sides = std::count_if(borders.begin(), borders.end(),
                                   [](const ParagraphBorder& border) { return IsShown(border.line); });
  std::size_t room = MaxTabStops - TabStopsOfBorder * static_cast<std::size_t>(sides);
  const auto hasNoRoom = [&](const TabStop& tab) {
    const std::size_t taken = tab.leader == TabLeader::None ? 1 : 1 + TabStopsOfLeader;
    if (room < taken) return true;
    room -= taken;
    return false;
  };
  tabs.erase(std::find_if(tabs.begin(), tabs.end(), hasNoRoom), tabs.end());
  return tabs;
}

Document EmptyDocument() {
  Document document;
  document.paragraphs.push_back({});
  document.formats.push_back({});
  document.paragraphFormats.push_back({});
  return document;
}

}  // namespace richtext
