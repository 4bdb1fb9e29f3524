#include "richtext/rtf/StyleSheet.h"

#include "richtext/document/Limits.h"

namespace richtext::rtf {
namespace {

constexpr std::size_t MostWords = 60;  // of a style

// What is told of rows is told once more by each of them, and an item of a list tells the list itself.
bool IsOfRowOrList(std::string_view name) {
  return name.starts_with("tr") || name.starts_with("cl") || name == "cellx" || name == "ls" ||
         name == "ilvl";
}

}  // namespace

void StyleSheet::Take(const ControlWord& word, std::int32_t parameter) {
  if (word.name == "s") {
    inHand_ = parameter;
    if (styles_.size() < MaxFormats) styles_[parameter] = {};
    return;
  }
  const auto style = inHand_ ? styles_.find(*inHand_) : styles_.end();
  if (style == styles_.end()) return;
  if (word.name == "sbasedon")
    style->second.base = parameter;
  else if (word.kind == WordKind::Format && !IsOfRowOrList(word.name) && style->second.own.size() < MostWords)
    style->second.own.push_back({&word, parameter});
}

const StyleSheet::Style* StyleSheet::Find(std::int32_t style) const {
  const auto found = styles_.find(style);
  return found == styles_.end() ? nullptr : &found->second;
}

const StyleSheet::Formats* StyleSheet::Known(std::int32_t style) const {
  const auto known = known_.find(style);
  return known == known_.end() ? nullptr : &known->second;
}

}  // namespace richtext::rtf
