#include "bookcase/JournalList.h"

#include <algorithm>

#include <QtGui/QHelpEvent>
#include <QtGui/QPainter>
#include <QtGui/QRadialGradient>
#include <QtGui/QTextLayout>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QToolTip>

#include "bookcase/ShelfBoard.h"
#include "look/FocusLine.h"
#include "look/Growth.h"
#include "look/Palettes.h"
#include "look/PixelGrid.h"
#include "look/Theme.h"

namespace {

using look::Grown;

// In pixels of the design.
constexpr int IconSize = 32;
constexpr int LeastColumn = 104;
constexpr int Air = 8;          // above an icon
constexpr int Gap = 4;          // between the labels
constexpr int LabelTop = 4;     // from the board to the label below it
constexpr int SidePadding = 6;  // from a label's edge to its text
constexpr int Padding = 3;
constexpr int BoardTop = Air + IconSize - 3;  // an icon has some pixels of air below it
constexpr int LabelsTop = BoardTop + ShelfBoardHeight + LabelTop;
constexpr double Corner = 3;

constexpr int MostLines = 3;
constexpr int MostKept = 500;  // names

// What goes on in the next line within a word ends in a hyphen; among digits it would read as one of theirs.
bool BreaksAWord(const QString& name, int at) {
  return at > 0 && at < name.size() && name[at - 1].isLetter() && name[at].isLetter();
}

struct ShownName {
  QStringList lines;  // at least one, which may be empty
  bool isWhole = true;
};

// A word that is wider than the column goes on in the next line.
ShownName Broken(const QString& name, const QFont& font, int width) {
  QTextLayout layout(name, font);
  QTextOption wrapping;
  wrapping.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(wrapping);
  layout.beginLayout();
  ShownName shown;
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width);
    const bool isHyphened = BreaksAWord(name, line.textStart() + line.textLength());
    if (isHyphened) line.setLineWidth(width - QFontMetrics(font).horizontalAdvance(u'-'));
    shown.isWhole = shown.lines.size() < MostLines;
    if (shown.isWhole) {
      const QString text = name.mid(line.textStart(), line.textLength()).trimmed();
      shown.lines << (isHyphened ? text + u'-' : text);
    } else {
      const QString rest = shown.lines.back() + u' ' + name.mid(line.textStart());
      shown.lines.back() = QFontMetrics(font).elidedText(rest, Qt::ElideRight, width);
      break;
    }
  }
  if (shown.lines.isEmpty()) shown.lines << QString();
  return shown;
}

// A card of paper, or of the theme's material for the journal that is selected, with a dotted line where the
// keyboard is.
void PaintLabel(QPainter& painter, const QRect& place, const QStyleOptionViewItem& option) {
  const bool isSelected = option.state.testFlag(QStyle::State_Selected);
  const QColor face = option.palette.color(isSelected ? QPalette::Button : QPalette::Base);
  const QColor edge = isSelected ? look::HairlineOn(face) : look::Mixed(look::Walnut, look::Board, 0.45f);
  const double line = look::Hairline(painter);
  painter.setPen(QPen(edge, line));
  painter.setBrush(face);
  painter.drawRoundedRect(look::WithinEdge(painter, place), Corner, Corner);
  if (isSelected && option.state & QStyle::State_HasFocus)
    look::DrawFocusLine(painter, place.adjusted(2, 2, -2, -2), option.palette.color(QPalette::Text));
}

// Behind the icon that is selected, as if a lamp stood on the board.
void PaintGlow(QPainter& painter, const QRect& cell, const QStyleOptionViewItem& option) {
  const QColor face = option.palette.color(QPalette::Button);
  constexpr double wide = 1.6, below = 12;  // times its height; pixels of it that fall on the board
  constexpr double radius = BoardTop - below;
  QRadialGradient glow(QPointF(), radius);
  glow.setColorAt(0, face);
  glow.setColorAt(0.5, look::Mixed(face, look::Board, 0.75f));
  glow.setColorAt(1, look::Board);
  painter.save();
  painter.translate(cell.center().x() + 1, cell.top());
  painter.scale(look::Growth() * wide, look::Growth());
  painter.translate(0, radius);
  painter.fillRect(QRectF(-radius, -radius, 2 * radius, radius + below), glow);
  painter.restore();
}

class JournalLabel : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const QStringList& lines = NameIn(option, index).lines;
    const int lineHeight = option.fontMetrics.lineSpacing();
    const QRect& cell = option.rect;
    QRect label = cell.adjusted(Grown(Gap), Grown(LabelsTop), -Grown(Gap), 0);
    label.setHeight(2 * Grown(Padding) + static_cast<int>(lines.size()) * lineHeight);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (option.state & QStyle::State_Selected) PaintGlow(*painter, cell, option);
    PaintLabel(*painter, label, option);
    const int side = Grown(IconSize);
    const QRect icon(cell.center().x() - side / 2 + 1, cell.top() + Grown(Air), side, side);
    index.data(Qt::DecorationRole).value<QIcon>().paint(painter, icon);
    QRect line(label.left(), label.top() + Grown(Padding), label.width(), lineHeight);
    painter->setFont(option.font);
    painter->setPen(option.palette.color(QPalette::Text));
    for (const QString& text : lines) {
      painter->drawText(line, Qt::AlignCenter, text);
      line.translate(0, lineHeight);
    }
    painter->restore();
  }

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const override {
    return static_cast<const QListView*>(option.widget)->gridSize();
  }

  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override {
    if (event->type() == QEvent::ToolTip && NameIn(option, index).isWhole) {
      QToolTip::hideText();
      return true;
    }
    return QStyledItemDelegate::helpEvent(event, view, option, index);
  }

 private:
  // A name is broken once for a column: that takes longer than to paint it.
  const ShownName& NameIn(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const int width = option.rect.width() - 2 * Grown(Gap + SidePadding);
    if (width != width_ || option.font != font_ || names_.size() > MostKept) names_.clear();
    width_ = width;
    font_ = option.font;
    const QString name = index.data().toString();
    const auto known = names_.constFind(name);
    return known != names_.cend() ? *known : *names_.insert(name, Broken(name, font_, width_));
  }

  mutable QHash<QString, ShownName> names_;  // as they are broken for this width and font
  mutable int width_ = 0;
  mutable QFont font_;
};

}  // namespace

JournalList::JournalList(QWidget* parent) : QListWidget(parent) {
  setViewMode(QListView::IconMode);
  setMovement(QListView::Static);
  setResizeMode(QListView::Adjust);
  setUniformItemSizes(true);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  setItemDelegate(new JournalLabel(this));
  QPalette strip;
  strip.setColor(QPalette::Base, look::Board);
  verticalScrollBar()->setPalette(strip);
  RuleGrid();
}

// The scroll bar has its place whether it shows or not, so that its coming moves no column.
void JournalList::RuleGrid() {
  const int width = this->width() - 2 * frameWidth() - verticalScrollBar()->sizeHint().width() - 1;
  const int least = Grown(LeastColumn);
  const int columns = std::max(1, width / least);
  const int label = 2 * Grown(Padding) + MostLines * fontMetrics().lineSpacing();
  setGridSize(QSize(std::max(width / columns, least), Grown(LabelsTop) + label + Grown(Gap)));
}

void JournalList::changeEvent(QEvent* event) {
  QListWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) RuleGrid();
}

void JournalList::resizeEvent(QResizeEvent* event) {
  RuleGrid();
  QListWidget::resizeEvent(event);
}

// Boards down to the window's edge, whether a journal stands on them or not.
void JournalList::PaintBoards(QPainter& painter) const {
  painter.fillRect(viewport()->rect(), look::Board);
  const int step = gridSize().height();
  for (int top = Grown(BoardTop) - verticalScrollBar()->value(); top < viewport()->height(); top += step)
    PaintShelfBoard(painter, top, viewport()->width());
}

void JournalList::paintEvent(QPaintEvent* event) {
  {
    QPainter painter(viewport());
    PaintBoards(painter);
    if (count() == 0) PaintHint(painter);
  }
  QListWidget::paintEvent(event);
}

// An empty bookcase says how it is filled.
void JournalList::PaintHint(QPainter& painter) const {
  const QString hint = QStringLiteral("There is no journal here yet.\nThe button Add makes one.");
  const QRect room = viewport()->rect().adjusted(Grown(LeastColumn) / 2, 0, -Grown(LeastColumn) / 2, 0);
  constexpr int flags = Qt::AlignCenter | Qt::TextWordWrap;
  const QRect card = painter.boundingRect(room, flags, hint).adjusted(-12, -8, 12, 8);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(look::Mixed(look::Walnut, look::Board, 0.45f), look::Hairline(painter)));
  painter.setBrush(look::Paper);
  painter.drawRoundedRect(look::WithinEdge(painter, card), Corner, Corner);
  painter.setPen(palette().color(QPalette::PlaceholderText));
  painter.drawText(room, flags, hint);
  if (hasFocus()) look::DrawFocusLine(painter, card.adjusted(3, 3, -3, -3), palette().color(QPalette::Text));
}
