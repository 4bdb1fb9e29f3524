#include "editor/DateCalendar.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QTextCharFormat>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTableView>
#include <QtWidgets/QToolButton>

#include "look/EnterPresses.h"
#include "look/FocusLine.h"
#include "look/Growth.h"
#include "look/Palettes.h"
#include "look/PaperStyle.h"
#include "look/PixelGrid.h"
#include "look/Spoken.h"
#include "look/SpokenChoice.h"
#include "look/Theme.h"
#include "platform/Dates.h"

namespace {

// Where a desktop opens things with one click, a click must still do no more than select its day.
class TwoClickStyle : public look::PaperStyle {
 public:
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    return hint == SH_ItemView_ActivateItemOnSingleClick
               ? 0
               : look::PaperStyle::styleHint(hint, option, widget, data);
  }
};

constexpr int HeadIcon = 16;  // pixels of the design
constexpr QColor RingOfGilt(0xa8, 0x84, 0x3a);
constexpr QColor WeekendRed(0x7d, 0x1a, 0x30);
constexpr float StandingBack = 0.62f;  // of the ink of a day of the months beside

// The head and the names of the days lie on the theme's pale colour, the days on paper.
QPalette PaletteFor(const QColor& color) {
  QPalette colors = look::PaletteOn(color);
  colors.setColor(QPalette::AlternateBase, color);
  return colors;
}

// To the month before or after, as high as the small letters beside it.
QPixmap Chevron(bool toTheLeft, const QColor& color, double letterHeight, double scale) {
  const int size = look::Grown(HeadIcon);
  QPixmap picture(QSize(size, size) * scale);
  picture.setDevicePixelRatio(scale);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(color, 1.75, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const double half = letterHeight / 2, middle = size / 2.0;
  const double tip = middle + (toTheLeft ? -half : half) / 2;
  painter.drawPolyline(QPolygonF({{size - tip, middle - half}, {tip, middle}, {size - tip, middle + half}}));
  return picture;
}

void PaintRing(QPainter& painter, const QRectF& room, const QColor& ink) {
  const double side = std::min(room.width(), room.height()) - 1;
  QRectF ring(0, 0, side * 1.25, side);
  ring.moveCenter(room.center());
  painter.setPen(QPen(ink, 1.75));
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(ring);
}

}  // namespace

DateCalendar::DateCalendar(QWidget* parent) : QCalendarWidget(parent) {
  setLocale(QLocale::system());
  setFirstDayOfWeek(QLocale::system().firstDayOfWeek());
  setVerticalHeaderFormat(NoVerticalHeader);
  setDateRange(platform::FirstCalendarDay(), platform::LastCalendarDay());
  setDateEditEnabled(false);  // it would start from today and not from the date that stands here
  setFont(QFont(QStringLiteral("Verdana")));
  auto* days = findChild<QTableView*>();
  look::SpeakChoice(*days, {});
  days->setAccessibleName(QStringLiteral("the days of the month"));
  auto* style = new TwoClickStyle;
  style->setParent(this);
  days->setStyle(style);
  days->viewport()->installEventFilter(this);
  setFocusProxy(days);
  OpenHeadToKeys();
  SetBackColor({});
  connect(this, &QCalendarWidget::activated, this, &DateCalendar::DblClick);
  connect(this, &QCalendarWidget::currentPageChanged, this, &DateCalendar::FollowMonth);
  connect(this, &QCalendarWidget::selectionChanged, this, &DateCalendar::TellDate);
  TellDate();
}

// Month and year can be changed without a mouse, too: the toolkit keeps the keyboard out of its buttons.
void DateCalendar::OpenHeadToKeys() {
  QWidget* before = nullptr;
  constexpr std::tuple<const char*, const char*, const char*> buttons[] = {
      {"prevmonth", "previous month", "Page Up"},
      {"monthbutton", "", ""},  // say what they show
      {"yearbutton", "", ""},
      {"nextmonth", "next month", "Page Down"}};
  for (const auto& [name, meaning, key] : buttons) {
    auto* button = findChild<QToolButton*>(QStringLiteral("qt_calendar_") + QLatin1String(name));
    if (!button) continue;
    button->setAccessibleName(QLatin1String(meaning));
    button->setToolTip(QLatin1String(key));
    button->setFocusPolicy(Qt::TabFocus);
    button->installEventFilter(this);
    look::LetEnterPress(*button);
    if (button->menu()) button->menu()->setFont(font());  // a window of its own, which takes no other's font
    if (before) setTabOrder(before, button);
    before = button;
  }
  if (before) setTabOrder(before, focusProxy());
  if (auto* year = findChild<QSpinBox*>()) year->installEventFilter(this);
}

// The selected day goes along into another month, so that what would be set is always in sight.
void DateCalendar::FollowMonth(int year, int month) {
  const QDate first(year, month, 1);
  if (selectedDate().year() == year && selectedDate().month() == month) return;
  setSelectedDate(first.addDays(std::min(selectedDate().day(), first.daysInMonth()) - 1));
}

// The toolkit tells of a table of numbers, of which Orca reads whole rows.
void DateCalendar::TellDate() const {
  const QString date = locale().toString(selectedDate(), QLocale::LongFormat);
  look::SpeakChoice(*focusProxy(), date);
  if (isVisible() && !focusProxy()->hasFocus()) look::Announce(date);
}

double DateCalendar::Value() const {
  if (selectedDate() == platform::CalendarDay(value_)) return value_;
  const QTime time = platform::ToDateTime(value_).time();
  return platform::FromDateTime(QDateTime(selectedDate(), time, Qt::UTC));
}

void DateCalendar::SetValue(double date) {
  const QDate day = platform::CalendarDay(date);
  const bool shows = platform::ToDateTime(date).date() == day;
  value_ = shows ? date : platform::FromDateTime(day.startOfDay(Qt::UTC));
  setSelectedDate(day);
}

void DateCalendar::SetBackColor(const QColor& color) {
  backColor_ = color.isValid() ? color : QApplication::palette().color(QPalette::Window);
  setPalette(color.isValid() ? PaletteFor(color) : QPalette());
  QTextCharFormat names;
  names.setForeground(look::Ink);
  names.setBackground(backColor_);
  setHeaderTextFormat(names);
  QTextCharFormat weekend;
  weekend.setForeground(WeekendRed);
  for (int day = Qt::Monday; day <= Qt::Sunday; ++day)
    if (const auto weekday = static_cast<Qt::DayOfWeek>(day); !locale().weekdays().contains(weekday))
      setWeekdayTextFormat(weekday, weekend);
  DressHead();
}

// The buttons take their colours from the bar that they lie on, raised or flat; given to them, they would be
// lost when the mouse has passed over.
void DateCalendar::DressHead() {
  auto* bar = findChild<QWidget*>(QStringLiteral("qt_calendar_navigationbar"));
  auto* previous = findChild<QToolButton*>(QStringLiteral("qt_calendar_prevmonth"));
  auto* next = findChild<QToolButton*>(QStringLiteral("qt_calendar_nextmonth"));
  if (!bar || !previous || !next) return;
  QPalette colors = palette();
  colors.setColor(QPalette::Highlight, backColor_);  // what the bar is filled with
  colors.setColor(QPalette::HighlightedText, look::Ink);
  bar->setPalette(colors);
  const double height = bar->fontMetrics().xHeight();
  previous->setIcon(Chevron(!isRightToLeft(), look::Ink, height, devicePixelRatioF()));
  next->setIcon(Chevron(isRightToLeft(), look::Ink, height, devicePixelRatioF()));
  for (QToolButton* button : {previous, next}) button->setIconSize(look::Grown(QSize(HeadIcon, HeadIcon)));
}

QColor DateCalendar::BackColor() const {
  return backColor_;
}

bool DateCalendar::IsOfTheMonth(QDate day) const {
  return day.month() == monthShown() && day.year() == yearShown();
}

// The page's day is in a ring of gilt, the day that would be set lies on a label, today is underlined.
void DateCalendar::paintCell(QPainter* painter, const QRect& cell, QDate day) const {
  painter->save();
  painter->fillRect(cell, look::Paper);  // over the toolkit's own mark
  painter->setRenderHint(QPainter::Antialiasing);
  const QRectF label = look::WithinEdge(*painter, QRectF(cell).adjusted(2, 2, -2, -2));
  if (day == selectedDate()) {
    painter->setPen(QPen(look::HairlineOn(backColor_), look::Hairline(*painter)));
    painter->setBrush(backColor_);
    painter->drawRoundedRect(label, 3, 3);
    if (focusProxy()->hasFocus())
      look::DrawFocusLine(*painter, label.adjusted(1.5, 1.5, -1.5, -1.5), look::Ink);
  }
  if (day == platform::CalendarDay(value_))
    PaintRing(*painter, label, day == selectedDate() ? look::Walnut : RingOfGilt);
  const bool isWeekend = !locale().weekdays().contains(static_cast<Qt::DayOfWeek>(day.dayOfWeek()));
  const QColor ink = isWeekend ? WeekendRed : look::Ink;
  painter->setPen(IsOfTheMonth(day) ? ink : look::Mixed(ink, look::Paper, StandingBack));
  QFont letters = font();
  letters.setUnderline(day == platform::CalendarDay(platform::Now()));
  painter->setFont(letters);
  painter->drawText(cell, Qt::AlignCenter, locale().toString(day.day()));
  painter->restore();
}

// The toolkit passes over a double click whose first click has turned the month. Enter in the year's box ends
// the box, and must not go on to the window's default button.
bool DateCalendar::eventFilter(QObject* watched, QEvent* event) {
  if (qobject_cast<QSpinBox*>(watched)) return EndsYearBox(*event);
  if (auto* button = qobject_cast<QToolButton*>(watched)) {
    // Raised is the only way that such a button shows that it has the focus.
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
      button->setAutoRaise(event->type() == QEvent::FocusOut);
    return false;
  }
  if (event->type() != QEvent::MouseButtonDblClick) return QCalendarWidget::eventFilter(watched, event);
  if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) Q_EMIT DblClick();
  return true;
}

bool DateCalendar::EndsYearBox(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return false;
  const int key = static_cast<const QKeyEvent&>(event).key();
  if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
  focusProxy()->setFocus();
  return true;
}
