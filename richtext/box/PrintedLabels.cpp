#include "richtext/box/PrintedLabels.h"

namespace richtext {

void PrintedLabels::Tell(std::vector<PrintedLine>& lines) {
  for (PrintedLine& line : lines) {
    if (line.position < from_) continue;
    line.label = LabelBeside(line);
    from_ = line.position;
  }
}

// Each paragraph of the source is counted once, also one whose first line is not selected and shows no label.
QString PrintedLabels::LabelBeside(const PrintedLine& line) {
  const QTextBlock paragraph = source_.findBlock(line.position);
  if (paragraph.blockNumber() == counted_) return {};
  counted_ = paragraph.blockNumber();
  const QString label = labels_.Count(paragraph);
  return line.position == paragraph.position() ? label : QString();
}

}  // namespace richtext
