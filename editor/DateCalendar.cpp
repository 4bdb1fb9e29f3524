#include "editor/DateCalendar.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QTextCharFormat>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QTableView>

#include "platform/Dates.h"

namespace {

constexpr QColor WeekendInk(0x68, 0x14, 0x24);  // the toolkit's red is hard to read on a pale colour

// Where a desktop opens things with one click, a click must still do no more than select its day.
class TwoClickStyle : public QProxyStyle {
 public:
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    return hint == SH_ItemView_ActivateItemOnSingleClick ? 0
                                                         : QProxyStyle::styleHint(hint, option, widget, data);
  }
};

}  // namespace

DateCalendar::DateCalendar(QWidget* parent) : QCalendarWidget(parent) {
  setLocale(QLocale::system());
  setFirstDayOfWeek(QLocale::system().firstDayOfWeek());
  setVerticalHeaderFormat(NoVerticalHeader);
  setDateRange(platform::FirstCalendarDay(), platform::LastCalendarDay());
  setFont(QFont(QStringLiteral("Verdana")));
  auto* days = findChild<QTableView*>();
  auto* style = new TwoClickStyle;
  style->setParent(this);
  days->setStyle(style);
  days->viewport()->installEventFilter(this);
  setFocusProxy(days);
  connect(this, &QCalendarWidget::activated, this, &DateCalendar::DblClick);
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
  if (!color.isValid()) return setPalette({});
  QTextCharFormat weekend;
  weekend.setForeground(WeekendInk);
  for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday}) setWeekdayTextFormat(day, weekend);
  QPalette colors(color, color);
  colors.setColor(QPalette::Base, color);
  colors.setColor(QPalette::AlternateBase, color.darker(106));
  setPalette(colors);
}

QColor DateCalendar::BackColor() const {
  return palette().color(QPalette::Base);
}

// The toolkit passes over a double click whose first click has turned the month.
bool DateCalendar::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::MouseButtonDblClick) return QCalendarWidget::eventFilter(watched, event);
  if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) Q_EMIT DblClick();
  return true;
}
