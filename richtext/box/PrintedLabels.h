// The labels of list items on paper.
#pragma once

#include <vector>

#include "richtext/box/PrintedPiece.h"
#include "richtext/textdocument/Labels.h"

namespace richtext {

class PrintedLabels {
 public:
  // Those of what begins at a position of the source, which must outlive it.
  PrintedLabels(const QTextDocument& source, int from)
      : source_(source), labels_(source.findBlock(from)), from_(from) {}

  // Gives lines their labels that are not told of before. The lines come in the order of the source.
  void Tell(std::vector<PrintedLine>& lines);

 private:
  QString LabelBeside(const PrintedLine& line);

  const QTextDocument& source_;
  LabelCounter labels_;
  int from_;          // what is not told of yet
  int counted_ = -1;  // number of the block that was counted last
};

}  // namespace richtext
