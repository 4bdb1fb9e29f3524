// The paragraphs that wait while the text of a shape is read, which stands in the document before the one
// that the shape belongs to.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "richtext/rtf/DocumentBuilder.h"
#include "richtext/rtf/GroupState.h"
#include "richtext/rtf/WrittenLabel.h"

namespace richtext::rtf {

class HeldParagraphs {
 public:
  struct Paragraph {
    std::size_t depth = 0;  // of the group of the shape's text
    DocumentBuilder::OpenText text;
    WrittenLabel label;
    ParagraphState state;  // in force where its text was met last
  };

  void Hold(Paragraph paragraph) { held_.push_back(std::move(paragraph)); }
  bool HasAny() const { return !held_.empty(); }
  // Whether the group of this depth is the text that the innermost one waits for.
  bool WaitsForEndAt(std::size_t depth) const { return HasAny() && held_.back().depth == depth; }
  // The innermost one, which waits no more.
  Paragraph Take() {
    Paragraph paragraph = std::move(held_.back());
    held_.pop_back();
    return paragraph;
  }

 private:
  std::vector<Paragraph> held_;
};

}  // namespace richtext::rtf
