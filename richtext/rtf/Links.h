// The hyperlinks of a document, each of which is kept once, and what they come to where they are written.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "richtext/document/Limits.h"

namespace richtext::rtf {

class Links {
 public:
  // 0 for no link.
  std::uint32_t NumberOf(const std::string& link) {
    const auto [known, isNew] = numbers_.try_emplace(link, static_cast<std::uint32_t>(links_.size()));
    if (isNew) links_.push_back(link);
    return known->second;
  }
  const std::string& At(std::uint32_t number) const { return links_[number]; }

 private:
  std::vector<std::string> links_{std::string()};
  std::unordered_map<std::string, std::uint32_t> numbers_{{std::string(), 0}};
};

// A link is told anew in every paragraph and behind other text, so a short document could ask for a long one.
class LinkTally {
 public:
  // Text with a link, or with none, comes. False where MaxLinkText has no room for the link: the text must
  // have none.
  bool Admits(std::uint32_t link, const Links& links) {
    if (link == open_) return true;
    bytes_ += links.At(link).size();
    const bool fits = bytes_ <= MaxLinkText;
    open_ = fits ? link : 0;
    return fits;
  }
  void EndParagraph() { open_ = 0; }

 private:
  std::uint32_t open_ = 0;  // of the text that came last in the open paragraph
  std::size_t bytes_ = 0;
};

}  // namespace richtext::rtf
