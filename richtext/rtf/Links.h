// The hyperlinks of a document, each of which is kept once.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

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

}  // namespace richtext::rtf
