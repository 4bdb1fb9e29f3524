// The borders that markup tells of its blocks, which the toolkit knows of tables alone.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "richtext/document/Document.h"
#include "richtext/document/FormatNumbers.h"
#include "richtext/html/Tag.h"

namespace richtext::html {

// What a style attribute tells of borders and of the space within them.
ParagraphBorders BordersOfStyle(QStringView css);

// Gives each block the number of the frame that it stands in, its own or that of an element around it, in a
// way that the toolkit keeps: as the block's user state. Cells begin without one.
class Frames {
 public:
  Frames() { numbers_({}); }

  // Is told of each tag in turn.
  void Take(Tag& tag);
  // By number; 0 is none.
  std::vector<ParagraphBorders> All() { return std::move(frames_); }

 private:
  struct Open {
    QString name;
    std::uint32_t frame;
  };
  void Close(const QString& name);
  std::uint32_t FrameOf(const Tag& tag);
  static void Tell(std::uint32_t frame, Tag& tag);

  std::vector<Open> open_;  // elements
  std::vector<ParagraphBorders> frames_;
  FormatNumbers<ParagraphBorders> numbers_{frames_};
};

}  // namespace richtext::html
