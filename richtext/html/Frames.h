// The borders that markup tells of its blocks, which the toolkit knows of tables alone.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include <QtGui/QTextBlock>

#include "richtext/document/Document.h"
#include "richtext/document/FormatNumbers.h"
#include "richtext/html/Tag.h"

namespace richtext::html {

// What a style attribute tells of borders and of the space within them.
ParagraphBorders BordersOfStyle(QStringView css);

// Gives each element that tells of borders a number, in a way that the toolkit keeps and hands on to all that
// stands in the element: as its title. Titles of the markup's own go. Cells begin without a frame.
class FrameMarks {
 public:
  // Is told of each tag in turn.
  void Take(Tag& tag);
  // The elements' borders, by number; 0 is none.
  std::vector<ParagraphBorders> All() { return std::move(frames_); }

 private:
  static ParagraphBorders OwnOf(const Tag& tag);

  std::vector<ParagraphBorders> frames_{{}};
  std::unordered_set<ParagraphBorders, WholeFormatHash> different_;
};

// The frames that the toolkit's blocks stand in, by these marks.
class FramedBlocks {
 public:
  explicit FramedBlocks(const std::vector<ParagraphBorders>& frames) : frames_(frames) {}

  // Gives the paragraph that was made of a block its frame, and the indents and the ground within it. The
  // blocks come in the order of the document.
  void SetFrame(const QTextBlock& block, ParagraphFormat& format);

 private:
  // What the first block in a frame has.
  struct First {
    QTextBlockFormat told;
    std::optional<std::uint32_t> ground;
  };

  const std::vector<ParagraphBorders>& frames_;
  std::unordered_map<std::size_t, First> first_;  // by the number of the frame
};

}  // namespace richtext::html
