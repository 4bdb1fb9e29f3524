#include "richtext/rtf/StyleSheet.h"

#include "richtext/document/Limits.h"

namespace richtext::rtf {
namespace {

// Each paragraph of another style has its words carried out once more.
constexpr std::size_t DeepestBase = 10;  // styles that are based on each other
constexpr std::size_t MostWords = 60;    // of a style

// What is told of rows is told once more by each of them.
bool IsOfRow(std::string_view name) {
  return name.starts_with("tr") || name.starts_with("cl") || name == "cellx";
}

}  // namespace

void StyleSheet::Take(const ControlWord& word, std::int32_t parameter) {
  if (word.name == "s") {
    inHand_ = parameter;
    if (styles_.size() < MaxFormats) styles_[inHand_] = {};
    return;
  }
  const auto style = styles_.find(inHand_);
  if (style == styles_.end()) return;
  if (word.name == "sbasedon")
    style->second.base = parameter;
  else if (word.kind == WordKind::Format && !IsOfRow(word.name) && style->second.own.size() < MostWords)
    style->second.own.push_back({&word, parameter});
}

std::vector<StyleSheet::Step> StyleSheet::StepsOf(std::int32_t style) const {
  std::vector<const Style*> chain;
  for (auto at = styles_.find(style); at != styles_.end() && chain.size() < DeepestBase;
       at = styles_.find(at->second.base))
    chain.push_back(&at->second);
  std::vector<Step> steps;
  for (auto at = chain.rbegin(); at != chain.rend(); ++at)
    steps.insert(steps.end(), (*at)->own.begin(), (*at)->own.end());
  return steps;
}

const StyleSheet::Formats* StyleSheet::Known(std::int32_t style) const {
  const auto known = known_.find(style);
  return known == known_.end() ? nullptr : &known->second;
}

}  // namespace richtext::rtf
