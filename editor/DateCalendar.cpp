#include "editor/DateCalendar.h"

#include <algorithm>
#include <utility>

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QTextCharFormat>
#include <QtWidgets/QMenu>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTableView>
#include <QtWidgets/QToolButton>

#include "look/Spoken.h"
#include "platform/Dates.h"

namespace {

// Where a desktop opens things with one click, a click must still do no more than select its day.
class TwoClickStyle : public QProxyStyle {
 public:
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    return hint == SH_ItemView_ActivateItemOnSingleClick ? 0
                                                         : QProxyStyle::styleHint(hint, option, widget, data);
  }
};

QColor Mixed(const QColor& first, const QColor& second) {
  return QColor((first.red() + second.red()) / 2, (first.green() + second.green()) / 2,
                (first.blue() + second.blue()) / 2);
}

// On a theme's pale colour: ink, and for the head and the chosen day the colour's own hue, deep enough for
// pale letters. The days of the months beside stand back.
QPalette PaletteOn(const QColor& color) {
  const QColor ink(0x2b, 0x24, 0x30), paper(0xff, 0xfd, 0xf6);
  QPalette colors(color, color);
  colors.setColor(QPalette::Base, color);
  colors.setColor(QPalette::AlternateBase, color.darker(106));
  if (color.lightness() < 128) return colors;
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    colors.setColor(role, ink);
    colors.setColor(QPalette::Disabled, role, Mixed(ink, color));
  }
  colors.setColor(QPalette::Highlight, QColor::fromHslF(color.hslHueF(), 0.34f, 0.38f));
  colors.setColor(QPalette::HighlightedText, paper);
  return colors;
}

// To the month before or after.
QPixmap Chevron(bool toTheLeft, const QColor& color, double scale) {
  constexpr int size = 16;
  QPixmap picture(QSize(size, size) * scale);
  picture.setDevicePixelRatio(scale);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(color, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const double tip = toTheLeft ? 5.5 : 10.5;
  painter.drawPolyline(QPolygonF({{size - tip, 3}, {tip, 8}, {size - tip, 13}}));
  return picture;
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
}

// Month and year can be changed without a mouse, too: the toolkit keeps the keyboard out of its buttons.
void DateCalendar::OpenHeadToKeys() {
  QWidget* before = nullptr;
  constexpr std::pair<const char*, const char*> buttons[] = {{"prevmonth", "previous month"},
                                                             {"monthbutton", ""},  // say what they show
                                                             {"yearbutton", ""},
                                                             {"nextmonth", "next month"}};
  for (const auto& [name, meaning] : buttons) {
    auto* button = findChild<QToolButton*>(QStringLiteral("qt_calendar_") + QLatin1String(name));
    if (!button) continue;
    button->setAccessibleName(QLatin1String(meaning));
    button->setFocusPolicy(Qt::TabFocus);
    button->installEventFilter(this);
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

// The toolkit says the number of the day alone.
void DateCalendar::TellDate() const {
  if (isVisible()) look::Announce(locale().toString(selectedDate(), QLocale::LongFormat));
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
  setPalette(color.isValid() ? PaletteOn(color) : QPalette());
  QTextCharFormat weekend;  // reds that are easy to read there
  weekend.setForeground(BackColor().lightness() < 128 ? QColor(0xff, 0x9a, 0xa8) : QColor(0x96, 0x20, 0x3c));
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
  const QColor letters = palette().color(QPalette::HighlightedText);
  QPalette colors;
  colors.setColor(QPalette::Button, palette().color(QPalette::Highlight).darker(140));
  for (const auto role : {QPalette::ButtonText, QPalette::WindowText}) colors.setColor(role, letters);
  bar->setPalette(colors);
  previous->setIcon(Chevron(!isRightToLeft(), letters, devicePixelRatioF()));
  next->setIcon(Chevron(isRightToLeft(), letters, devicePixelRatioF()));
}

QColor DateCalendar::BackColor() const {
  return palette().color(QPalette::Base);
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
