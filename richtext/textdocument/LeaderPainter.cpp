#include "richtext/textdocument/LeaderPainter.h"

#include <algorithm>
#include <cmath>

#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QPainter>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtGui/QTextLayout>

#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/ShownBlocks.h"
#include "richtext/textdocument/TabStops.h"

namespace richtext {
namespace {

// In the thickness of a line under the letters; what a mark and the gap behind it take.
struct Marks {
  double thickness, length, gap;
};

Marks MarksOf(TabLeader leader) {
  switch (leader) {
    case TabLeader::Hyphens:
      return {1, 4, 3};
    case TabLeader::EqualSigns:
      return {1, 6, 1};
    case TabLeader::Line:
      return {1, 1, 0};
    case TabLeader::ThickLine:
      return {2, 1, 0};
    default:
      return {1, 1, 3};
  }
}

// Pixels above the line that the letters stand on.
double HeightOf(TabLeader leader, const QFontMetricsF& letters) {
  const bool isLow = leader == TabLeader::Dots || leader == TabLeader::Line || leader == TabLeader::ThickLine;
  return isLow ? 0 : letters.xHeight() / 2;
}

// The marks of all lines stand below each other.
void DrawMarks(QPainter& painter, const Marks& marks, double unit, QLineF line) {
  const double period = unit * (marks.length + marks.gap);
  const double first = std::ceil(line.x1() / period), last = std::floor(line.x2() / period);
  if (first >= last) return;
  QPen pen = painter.pen();
  pen.setWidthF(unit * marks.thickness);
  pen.setCapStyle(Qt::FlatCap);
  if (marks.gap > 0) pen.setDashPattern({marks.length / marks.thickness, marks.gap / marks.thickness});
  painter.setPen(pen);
  painter.drawLine(QLineF(first * period, line.y1(), last * period - unit * marks.gap, line.y2()));
}

void DrawLeader(QPainter& painter, TabLeader leader, const QTextCharFormat& format, QLineF line) {
  const QFontMetricsF letters(format.font());
  const double unit = std::max(1.0, std::round(letters.lineWidth()));
  painter.setPen(ToColor(ColorOf(format)));
  line.translate(0, -std::round(HeightOf(leader, letters)));
  DrawMarks(painter, MarksOf(leader), unit, line);
  if (leader == TabLeader::EqualSigns)
    DrawMarks(painter, MarksOf(leader), unit, line.translated(0, 3 * unit));
}

QTextCharFormat FormatAt(const QTextBlock& block, int position) {
  QTextCursor letter(block);
  letter.setPosition(block.position() + position + 1);
  return letter.charFormat();
}

}  // namespace

void DrawLeaders(QPainter& painter, const QTextBlock& block, const QTextLine& line, const QPointF& place) {
  const QTextBlockFormat format = block.blockFormat();
  if (!format.hasProperty(LeadersOfTabs)) return;
  const QString text = block.text();
  const QRectF letters = line.naturalTextRect();
  const double begin = block.textDirection() == Qt::RightToLeft ? letters.right() : letters.left();
  const int end = line.textStart() + line.textLength();
  for (qsizetype tab = text.indexOf(u'\t', line.textStart()); tab >= 0 && tab < end;
       tab = text.indexOf(u'\t', tab + 1)) {
    const auto at = static_cast<int>(tab);
    const double from = line.cursorToX(at), to = line.cursorToX(at + 1);
    const TabLeader leader = LeaderBehind(format, std::abs(from - begin));
    const double foot = line.y() + line.ascent();
    if (leader != TabLeader::None)
      DrawLeader(painter, leader, FormatAt(block, at),
                 QLineF(std::min(from, to), foot, std::max(from, to), foot).translated(place));
  }
}

void DrawLeaders(QPainter& painter, const QTextDocument& document, const QRectF& shown) {
  const QAbstractTextDocumentLayout& layout = *document.documentLayout();
  for (QTextBlock block = FirstShown(document, shown); block.isValid() && block.isVisible();
       block = block.next()) {
    if (IsBelow(block, shown)) break;
    if (!block.blockFormat().hasProperty(LeadersOfTabs)) continue;
    const QPointF place = layout.blockBoundingRect(block).topLeft();
    for (int number = 0; number < block.layout()->lineCount(); ++number) {
      const QTextLine line = block.layout()->lineAt(number);
      if (line.rect().translated(place).intersects(shown)) DrawLeaders(painter, block, line, place);
    }
  }
}

}  // namespace richtext
