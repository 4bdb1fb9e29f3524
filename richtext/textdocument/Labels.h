// The labels of list items as the text box draws them: beside the first line, and no part of the text. The
// toolkit's own lists can start at no other number than 1, know few bullets, and take a time that grows with
// the square of a list's length.
#pragma once

#include <map>

#include <QtGui/QTextBlock>

#include "richtext/document/ItemCounter.h"

class QPainter;
class QPointF;
class QRectF;

namespace richtext {

// Counts the items of lists within lists in reading order. An item counts on from an item of the same level
// and format before it; deeper items between the two do not matter, other paragraphs end the list.
class LabelCounter {
 public:
  // Has counted nothing, as where no item stands before.
  LabelCounter() = default;
  // Has counted what stands before the block.
  explicit LabelCounter(const QTextBlock& block);
  // Counts the block and returns its label; empty where the block is no item.
  QString Count(const QTextBlock& block);

 private:
  ItemCounter items_;
};

// Counters for a document that is drawn time and again: each of them goes on from one that was kept nearby,
// and not from the list's first item.
class KeptCounters {
 public:
  // The counter that has counted what stands before the block, which is the document's.
  LabelCounter Before(const QTextBlock& block);
  // Something has changed in this block, and not before it.
  void NoteChange(int blockNumber) { counters_.erase(counters_.upper_bound(blockNumber), counters_.end()); }

 private:
  static constexpr int Distance = 64;     // blocks
  std::map<int, LabelCounter> counters_;  // by the number of the block that they count next
};

// The label of an item; empty where the block is none.
QString LabelOf(const QTextBlock& block);

// Draws the label of a block that is laid out. Painter and `place`, that of the block's layout, count in the
// document's own pixels, whatever device these fall on.
void DrawLabel(QPainter& painter, const QTextBlock& block, const QPointF& place, const QString& label);

// Draws the labels that can be seen of a document that is laid out. Painter and `shown` count in the
// document's own pixels. Returns whether there was one.
bool DrawLabels(QPainter& painter, const QTextDocument& document, const QRectF& shown,
                KeptCounters& counters);

}  // namespace richtext
