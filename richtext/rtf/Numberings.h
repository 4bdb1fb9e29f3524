// Lists that no list table tells: those of a \pn, and those of the labels that a writer put before
// paragraphs.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "richtext/document/Document.h"

namespace richtext::rtf {

// The older way to tell of a list, which stands with its first paragraph.
struct Numbering {
  ListFormat list;
  std::int32_t indent = 0;  // twips; where the paragraph has no indents of its own
  bool isOfTable = false;   // it refers to the list table, which tells more

  bool operator==(const Numbering&) const = default;
};

class Numberings {
 public:
  // The number of a list, by which At finds it; 0 when it is of no kind. A list that is the same as the one
  // before it is that one. Beyond MaxFormats the last one stands for all.
  std::uint32_t NumberOf(const Numbering& numbering);
  // The number of the list that a written label tells; 0 when it tells none. Labels that count on are of one
  // list, whose start is the first one's number.
  std::uint32_t NumberOfLabel(std::u16string_view label);
  const Numbering& At(std::uint32_t number) const { return numberings_[number - 1]; }

 private:
  bool CountsOn(const ListFormat& label) const;

  std::vector<Numbering> numberings_;
  std::uint32_t labelled_ = 0;  // the list of the last label
  std::int32_t nextLabel_ = 0;  // the number of the label that counts on
};

}  // namespace richtext::rtf
