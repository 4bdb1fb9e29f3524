#include "richtext/rtf/ColorTable.h"

#include <algorithm>

#include "richtext/document/Limits.h"
#include "richtext/rtf/GroupState.h"

namespace richtext::rtf {

void ColorTable::SetComponent(int shift, std::int32_t value) {
  hasComponent_ = true;
  color_ = (color_ & ~(0xFF << shift)) | (std::clamp(value, 0, 255) << shift);
}

void ColorTable::AppendText(std::string_view bytes) {
  for (const char byte : bytes)
    if (byte == ';') EndEntry();
}

void ColorTable::EndTable() {
  if (hasComponent_) EndEntry();
}

void ColorTable::EndEntry() {
  if (colors_.size() < MaxTableEntries) colors_.push_back(hasComponent_ ? color_ : AutomaticColor);
  hasComponent_ = false;
  color_ = 0;
}

std::int32_t ColorTable::Find(std::int32_t index) const {
  const auto at = static_cast<std::size_t>(index);
  return index >= 0 && at < colors_.size() ? colors_[at] : AutomaticColor;
}

}  // namespace richtext::rtf
