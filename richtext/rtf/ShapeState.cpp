#include "richtext/rtf/ShapeState.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "richtext/characters/Unicode.h"
#include "richtext/document/Limits.h"

namespace richtext::rtf {
namespace {

double Distance(std::int32_t from, std::int32_t to) {
  return static_cast<double>(std::int64_t{to} - from);
}

// Twips; 0 where the edges tell no size, and no more than any picture has, however deep the groups are.
double Fitting(double twips) {
  return std::clamp(twips, 0.0, static_cast<double>(MaxPictureTwips));
}

// Of a unit of `inside`, when that is as long as `twips`.
double UnitOf(double twips, double inside) {
  return inside > 0 ? Fitting(twips) / inside : 0;
}

}  // namespace

double ShapeState::Shape::Twips(Edge before, Edge after, double unit) const {
  return Fitting(Distance(edges[before], edges[after]) * (isRelative ? unit : 1));
}

// A group tells of itself before its shapes.
void ShapeState::BeginShape(std::size_t depth) {
  EndGroup(depth);
  Shape shape;
  shape.depth = depth;
  shape.shownBefore = shown_;
  if (!open_.empty()) {
    const Shape& around = open_.back();
    shape.unitWidth = UnitOf(around.Twips(Left, Right, around.unitWidth),
                             Distance(around.inside[Left], around.inside[Right]));
    shape.unitHeight = UnitOf(around.Twips(Top, Bottom, around.unitHeight),
                              Distance(around.inside[Top], around.inside[Bottom]));
  }
  open_.push_back(shape);
}

void ShapeState::Fit(Picture& picture) const {
  if (open_.empty()) return;
  const Shape& shape = open_.back();
  const auto width = static_cast<std::int32_t>(shape.Twips(Left, Right, shape.unitWidth));
  const auto height = static_cast<std::int32_t>(shape.Twips(Top, Bottom, shape.unitHeight));
  if (width == 0 || height == 0) return;
  picture.widthTwips = width;
  picture.heightTwips = height;
  picture.crop = {};
}

void ShapeState::SetPropertyValue(const std::u16string& digits) {
  if (open_.empty()) return;
  constexpr std::u16string_view Names[] = {u"Left", u"Top", u"Right", u"Bottom"};
  const bool isOfGroup = property_.starts_with(GroupEdge);
  const std::u16string_view name =
      std::u16string_view(property_).substr(isOfGroup ? GroupEdge.size() : RelativeEdge.size());
  const auto* const found = std::find(std::begin(Names), std::end(Names), name);
  if (found == std::end(Names)) return;
  Shape& shape = open_.back();
  shape.isRelative |= !isOfGroup;
  const std::string number = ToUtf8(digits);
  std::int32_t& edge = (isOfGroup ? shape.inside : shape.edges)[static_cast<std::size_t>(found - Names)];
  std::from_chars(number.data(), number.data() + number.size(), edge);
}

}  // namespace richtext::rtf
