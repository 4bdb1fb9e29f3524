#include "richtext/rtf/Numberings.h"

#include <optional>

#include "richtext/document/Limits.h"
#include "richtext/document/ListLabel.h"

namespace richtext::rtf {

std::uint32_t Numberings::NumberOf(const Numbering& numbering) {
  const Numbering fitting{FittingList(numbering.list), FittingSpace(numbering.indent), numbering.isOfTable};
  if (fitting.list.kind == ListKind::None) return 0;
  const bool known = !numberings_.empty() && numberings_.back() == fitting;
  if (!known && numberings_.size() < MaxFormats) numberings_.push_back(fitting);
  return static_cast<std::uint32_t>(numberings_.size());
}

std::uint32_t Numberings::NumberOfLabel(std::u16string_view label) {
  std::optional<ListFormat> list = ListOfLabel(label);
  if (!list) return 0;
  if (!CountsOn(*list)) {
    list->twin = labelled_ != 0 && At(labelled_).list == *list;
    labelled_ = NumberOf({*list, 0});
  }
  nextLabel_ = list->start + 1;
  return labelled_;
}

bool Numberings::CountsOn(const ListFormat& label) const {
  if (labelled_ == 0) return false;
  ListFormat list = At(labelled_).list;
  list.start = label.start;
  list.twin = false;
  return list == label && (label.kind == ListKind::Bullet || label.start == nextLabel_);
}

}  // namespace richtext::rtf
