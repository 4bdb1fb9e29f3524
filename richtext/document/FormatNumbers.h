// Numbers the formats of a page that is gathered from the toolkit's documents.
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "richtext/document/Document.h"

namespace richtext {

struct WholeFormatHash {
  std::size_t operator()(const CharacterFormat& format) const;
  std::size_t operator()(const ParagraphFormat& format) const;
  std::size_t operator()(const ParagraphBorders& borders) const;
  std::size_t operator()(const RowFormat& format) const;
};

// Puts each format into `formats` once, in the order in which they come.
template <class Format>
class FormatNumbers {
 public:
  explicit FormatNumbers(std::vector<Format>& formats) : formats_(formats) {}

  std::uint32_t operator()(const Format& format) {
    const auto next = static_cast<std::uint32_t>(formats_.size());
    const auto [known, isNew] = numbers_.try_emplace(format, next);
    if (isNew) formats_.push_back(format);
    return known->second;
  }

 private:
  std::vector<Format>& formats_;
  std::unordered_map<Format, std::uint32_t, WholeFormatHash> numbers_;
};

}  // namespace richtext
