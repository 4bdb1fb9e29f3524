#include "richtext/textdocument/Labels.h"

#include <algorithm>

#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QPainter>
#include <QtGui/QTextDocument>
#include <QtGui/QTextLayout>

#include "richtext/document/ListLabel.h"
#include "richtext/document/Twips.h"
#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/Paragraphs.h"
#include "richtext/textdocument/ShownBlocks.h"

namespace richtext {
namespace {

constexpr double PaperEdge = 1;  // pixels that a label keeps off it

QTextCharFormat LetterFormat(const QTextBlock& block) {
  const auto first = block.begin();
  return first.atEnd() ? block.charFormat() : first.fragment().charFormat();
}

QFont PlainFont(QFont font) {
  font.setUnderline(false);
  font.setStrikeOut(false);
  font.setCapitalization(QFont::MixedCase);
  return font;
}

bool FollowsAnItem(const QTextBlock& block) {
  return block.previous().isValid() && IsListItem(block.previous().blockFormat());
}

double LeftOf(const QTextBlock& block, const QPointF& place, double width, double gap) {
  const QRectF text = block.layout()->lineAt(0).naturalTextRect().translated(place);
  if (block.textDirection() == Qt::RightToLeft) return text.right() + gap;
  const double hanging = -block.blockFormat().intProperty(FirstIndentOfDocument) / TwipsPerPixel;
  return std::max(text.left() - std::max(hanging, width + gap), PaperEdge);
}

}  // namespace

LabelCounter::LabelCounter(const QTextBlock& block) : LabelCounter(KeptCounters().Before(block)) {}

LabelCounter KeptCounters::Before(const QTextBlock& block) {
  int number = block.blockNumber();
  QTextBlock first = block;
  for (; FollowsAnItem(first) && counters_.count(number) == 0; --number) first = first.previous();
  const auto kept = counters_.find(number);
  LabelCounter counter = kept == counters_.end() ? LabelCounter() : kept->second;
  for (; first != block; first = first.next()) {
    counter.Count(first);
    if (++number % Distance == 0) counters_[number] = counter;
  }
  return counter;
}

QString LabelCounter::Count(const QTextBlock& block) {
  const ListFormat list = ListOf(block.blockFormat());
  const std::int32_t number = items_.Count(list);
  return list.kind == ListKind::None ? QString() : QString::fromStdU16String(LabelText(list, number));
}

QString LabelOf(const QTextBlock& block) {
  return LabelCounter(block).Count(block);
}

// By a layout and not by the painter, which takes points for those of its device.
void DrawLabel(QPainter& painter, const QTextBlock& block, const QPointF& place, const QString& label) {
  const QTextCharFormat format = LetterFormat(block);
  const QFont font = PlainFont(format.font());
  QTextLayout drawn(label, font);
  drawn.beginLayout();
  const QTextLine line = drawn.createLine();
  drawn.endLayout();
  const QTextLine beside = block.layout()->lineAt(0);
  const double gap = QFontMetricsF(font).horizontalAdvance(u' ');
  painter.setPen(ToColor(ColorOf(format)));
  drawn.draw(&painter, QPointF(LeftOf(block, place, line.naturalTextWidth(), gap),
                               place.y() + beside.y() + beside.ascent() - line.ascent()));
}

bool DrawLabels(QPainter& painter, const QTextDocument& document, const QRectF& shown,
                KeptCounters& counters) {
  const QAbstractTextDocumentLayout& layout = *document.documentLayout();
  QTextBlock block = FirstShown(document, shown);
  LabelCounter counter = counters.Before(block);
  bool drawn = false;
  for (; block.isValid() && block.isVisible(); block = block.next()) {
    if (IsBelow(block, shown)) break;
    const QString label = counter.Count(block);
    if (label.isEmpty() || block.layout()->lineCount() == 0) continue;
    DrawLabel(painter, block, layout.blockBoundingRect(block).topLeft(), label);
    drawn = true;
  }
  return drawn;
}

}  // namespace richtext
