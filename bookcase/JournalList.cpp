#include "bookcase/JournalList.h"

#include <algorithm>

#include <QtGui/QHelpEvent>
#include <QtGui/QPainter>
#include <QtGui/QTextLayout>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QToolTip>

#include "look/FocusLine.h"
#include "look/Theme.h"

namespace {

// In pixels.
constexpr int IconSize = 32;
constexpr int LeastColumn = 104;
constexpr int Gap = 4;      // between the labels
constexpr int Padding = 6;  // from a label's edge to what stands on it
constexpr double Corner = 3;

constexpr int MostLines = 3;

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
    shown.isWhole = shown.lines.size() < MostLines;
    if (shown.isWhole) {
      shown.lines << name.mid(line.textStart(), line.textLength()).trimmed();
    } else {
      const QString rest = shown.lines.back() + u' ' + name.mid(line.textStart());
      shown.lines.back() = QFontMetrics(font).elidedText(rest, Qt::ElideRight, width);
      break;
    }
  }
  if (shown.lines.isEmpty()) shown.lines << QString();
  return shown;
}

QColor WithAlpha(QColor color, int alpha) {
  color.setAlpha(alpha);
  return color;
}

// A label of the theme's material, or a veil of the desktop's highlight; with a dotted line where the
// keyboard is.
void PaintLabel(QPainter& painter, const QRect& place, const QStyleOptionViewItem& option) {
  const bool plain = look::CurrentTheme().large.isNull();
  const QColor face = option.palette.color(plain ? QPalette::Highlight : QPalette::Button);
  const QRectF edge = QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5);
  painter.setPen(plain ? face : look::HairlineOn(face));
  painter.setBrush(plain ? WithAlpha(face, 70) : face);
  painter.drawRoundedRect(edge, Corner, Corner);
  if (option.state & QStyle::State_HasFocus)
    look::DrawFocusLine(painter, place.adjusted(2, 2, -2, -2), option.palette.color(QPalette::Text));
}

class JournalLabel : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const QStringList lines = NameIn(option, index).lines;
    const int lineHeight = option.fontMetrics.lineSpacing();
    QRect label = option.rect.adjusted(Gap, Gap, -Gap, 0);
    label.setHeight(3 * Padding + IconSize + static_cast<int>(lines.size()) * lineHeight);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (option.state & QStyle::State_Selected) PaintLabel(*painter, label, option);
    const QRect icon(label.center().x() - IconSize / 2 + 1, label.top() + Padding, IconSize, IconSize);
    index.data(Qt::DecorationRole).value<QIcon>().paint(painter, icon);
    QRect line(label.left(), icon.bottom() + 1 + Padding, label.width(), lineHeight);
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
  static ShownName NameIn(const QStyleOptionViewItem& option, const QModelIndex& index) {
    return Broken(index.data().toString(), option.font, option.rect.width() - 2 * (Gap + Padding));
  }
};

}  // namespace

JournalList::JournalList(QWidget* parent) : QListWidget(parent) {
  setViewMode(QListView::IconMode);
  setMovement(QListView::Static);
  setResizeMode(QListView::Adjust);
  setUniformItemSizes(true);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  setItemDelegate(new JournalLabel(this));
  RuleGrid();
}

// The scroll bar has its place whether it shows or not, so that its coming moves no column.
void JournalList::RuleGrid() {
  const int width = this->width() - 2 * frameWidth() - verticalScrollBar()->sizeHint().width() - 1;
  const int columns = std::max(1, width / LeastColumn);
  const int height = 2 * Gap + 3 * Padding + IconSize + MostLines * fontMetrics().lineSpacing();
  setGridSize(QSize(std::max(width / columns, LeastColumn), height));
}

void JournalList::changeEvent(QEvent* event) {
  QListWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) RuleGrid();
}

void JournalList::resizeEvent(QResizeEvent* event) {
  RuleGrid();
  QListWidget::resizeEvent(event);
}

// An empty bookcase says how it is filled.
void JournalList::paintEvent(QPaintEvent* event) {
  QListWidget::paintEvent(event);
  if (count() > 0) return;
  QPainter painter(viewport());
  painter.setPen(palette().color(QPalette::PlaceholderText));
  const QRect room = viewport()->rect().adjusted(LeastColumn / 2, 0, -LeastColumn / 2, 0);
  const int flags = Qt::AlignCenter | Qt::TextWordWrap;
  const QString hint = QStringLiteral("There is no journal here yet.\nThe button Add makes one.");
  painter.drawText(room, flags, hint);
  if (!hasFocus()) return;
  const QRect around = painter.boundingRect(room, flags, hint).adjusted(-Padding, -Padding, Padding, Padding);
  look::DrawFocusLine(painter, around, palette().color(QPalette::Text));
}
