#include "editor/Toolbar.h"

#include <algorithm>
#include <utility>

#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>

#include "editor/ToolbarPictures.h"
#include "look/EnterPresses.h"
#include "look/FocusLine.h"
#include "look/Form.h"
#include "look/Growth.h"
#include "look/Palettes.h"
#include "look/PixelGrid.h"
#include "look/Spoken.h"

namespace {

constexpr int ButtonWidth = 555;  // twips
constexpr int ButtonHeight = 540;
constexpr int SeparatorWidth = 120;
// In pixels of the design.
constexpr int PictureSize = 16;
constexpr int PictureTop = 3;
constexpr int CaptionTop = PictureTop + PictureSize + 3;
constexpr int CaptionSize = 11;  // 8.25 points
constexpr int LeastCaptionSize = 7;
constexpr int CaptionRoom = 3;  // of a button's width that a caption leaves free

struct Row {
  const char16_t* key;  // null: a separator
  const char16_t* caption;
  const char16_t* toolTip;
};

constexpr Row Separator = {nullptr, u"", u""};
constexpr Row rows[] = {
    {u"btnNewPage", u"New", u"Create new page"},
    {u"btnFirstPage", u"Title", u"Go to Title page"},
    {u"btnBack", u"Back", u"Go back one page"},
    {u"btnNext", u"Next", u"Go forward one page"},
    {u"btnLastPage", u"Last", u"Go to last page"},
    Separator,
    {u"btnPrint", u"Print", u"Print one or more pages"},
    {u"btnIndex", u"Index", u"Show index of your journal"},
    {u"btnCal", u"Cal", u"Show the calendar"},
    Separator,
    {u"btnInsertEmoticon", u"Emote", u"Insert an Emoticon"},
    {u"btnInsertPicture", u"Pic", u"Insert Picture"},
    {u"btnFont", u"Font", u"Change Font"},
    Separator,
    {u"btnOptions", u"Opt", u"Program Options"},
    {u"btnJournalProperties", u"Prop", u"Journal Properties"},
    Separator,
    {u"btnHelp", u"Help", u"View the help file"},
};

QString Text(const char16_t* text) {
  return QStringView(text).toString();
}

// The largest size up to the design's at which no caption is cut, whatever stands in for the font.
QFont CaptionFont() {
  QFont font(QStringLiteral("Verdana"));
  const int room = look::Pixels(ButtonWidth) - look::Grown(CaptionRoom);
  const auto fits = [&](const Row& row) {
    return QFontMetrics(font).horizontalAdvance(Text(row.caption)) <= room;
  };
  int size = look::Grown(CaptionSize);
  do font.setPixelSize(size);
  while (--size >= LeastCaptionSize && !std::all_of(std::begin(rows), std::end(rows), fits));
  return font;
}

// Picture above caption at fixed places, in the strip's own colours: a desktop style would spend the few
// pixels on its margins, and a dark one would write white on the pale strip.
class CaptionedButton : public QToolButton {
 public:
  using QToolButton::QToolButton;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    if (isDown() || underMouse() || hasFocus()) PaintPanel(painter);
    if (isDown()) painter.translate(0, 1);
    PaintPicture(painter);
    const int captionTop = look::Grown(CaptionTop);
    painter.setPen(look::Ink);
    painter.drawText(QRect(0, captionTop, width(), height() - captionTop), Qt::AlignHCenter | Qt::AlignTop,
                     text());
    if (hasFocus()) PaintFocus(painter);
  }

 private:
  void PaintPicture(QPainter& painter) const {
    const int size = look::Grown(PictureSize);
    const QRect place((width() - size) / 2, look::Grown(PictureTop), size, size);
    icon().paint(&painter, place, Qt::AlignCenter, underMouse() ? QIcon::Active : QIcon::Normal);
  }
  void PaintPanel(QPainter& painter) const {
    painter.setPen(QPen(QColor(0, 0, 0, 70), look::Hairline(painter)));
    painter.setBrush(isDown() ? QColor(0, 0, 0, 25) : QColor(255, 255, 255, 110));
    painter.drawRoundedRect(look::WithinEdge(painter, rect()), 2, 2);
  }
  void PaintFocus(QPainter& painter) const {
    look::DrawFocusLine(painter, rect().adjusted(1, 1, -1, -1), look::Ink);
  }
};

// Only keys lead here: a click leaves the keyboard in the page.
QToolButton* MakeButton(const Row& row, const QFont& font, QWidget* parent) {
  auto* button = new CaptionedButton(parent);
  button->setObjectName(Text(row.key));
  button->setFont(font);
  button->setIcon(ToolbarPicture(Text(row.key)));
  button->setIconSize({PictureSize, PictureSize});
  button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::TabFocus);
  button->setToolTip(Text(row.toolTip));
  return button;
}

// A line in the middle, as fine as each of the others at every scaling.
class SeparatingLine : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const QRectF line(width() / 2, 0, look::Hairline(painter), height());
    painter.fillRect(look::OnPixels(painter, line), QColor(0, 0, 0, 70));
  }
};

void MakeSeparator(int left, QWidget* parent) {
  auto* line = new SeparatingLine(parent);
  look::SpeakAs(*line, QAccessible::Separator);
  line->setGeometry(look::Pixels(left), look::Grown(4), look::Pixels(SeparatorWidth),
                    look::Pixels(ButtonHeight) - look::Grown(6));
}

}  // namespace

Toolbar::Toolbar(QWidget* parent) : QWidget(parent) {
  look::SpeakAs(*this, QAccessible::ToolBar);
  const QFont font = CaptionFont();
  int left = 0;
  for (const Row& row : rows) {
    if (!row.key) {
      MakeSeparator(left, this);
      entries_.push_back({});
      left += SeparatorWidth;
      continue;
    }
    QToolButton* button = MakeButton(row, font, this);
    button->installEventFilter(this);
    look::LetEnterPress(*button);
    button->setGeometry(look::Pixels(left), 0, look::Pixels(ButtonWidth), look::Pixels(ButtonHeight));
    connect(button, &QToolButton::clicked, this, [this, key = Text(row.key)] { Q_EMIT ButtonClick(key); });
    entries_.push_back({Text(row.key), {}, button});
    SetCaption(Count(), Text(row.caption));
    left += ButtonWidth;
  }
}

int Toolbar::Count() const {
  return static_cast<int>(entries_.size());
}

QString Toolbar::Caption(int position) const {
  return entries_.at(static_cast<std::size_t>(position - 1)).caption;
}

// A button without a caption is called by its tool tip.
void Toolbar::SetCaption(int position, const QString& caption) {
  Entry& entry = entries_.at(static_cast<std::size_t>(position - 1));
  entry.caption = caption;
  if (!entry.button) return;
  entry.button->setText(caption);
  entry.button->setAccessibleName(caption.isEmpty() ? entry.button->toolTip() : caption);
}

QToolButton* Toolbar::Button(int position) const {
  return entries_.at(static_cast<std::size_t>(position - 1)).button;
}

QToolButton* Toolbar::Button(const QString& key) const {
  for (const Entry& entry : entries_)
    if (entry.button && entry.key == key) return entry.button;
  return nullptr;
}

bool Toolbar::eventFilter(QObject* watched, QEvent* event) {
  return event->type() == QEvent::KeyPress && LeadOn(watched, static_cast<QKeyEvent*>(event)->key());
}

bool Toolbar::LeadOn(const QObject* from, int key) const {
  std::vector<QToolButton*> buttons;
  for (const Entry& entry : entries_)
    if (entry.button) buttons.push_back(entry.button);
  const auto last = static_cast<std::ptrdiff_t>(buttons.size()) - 1;
  const auto here = std::find(buttons.begin(), buttons.end(), from) - buttons.begin();
  const std::pair<int, std::ptrdiff_t> ways[] = {{Qt::Key_Left, here - 1},  {Qt::Key_Up, here - 1},
                                                 {Qt::Key_Right, here + 1}, {Qt::Key_Down, here + 1},
                                                 {Qt::Key_Home, 0},         {Qt::Key_End, last}};
  for (const auto& [way, to] : ways) {
    if (way != key) continue;
    buttons[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(to, 0, last))]->setFocus(
        Qt::OtherFocusReason);
    return true;
  }
  return false;
}
