#include "platform/Dates.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QtCore/QLocale>

#include "platform/Rounding.h"

namespace platform {
namespace {

constexpr double millisecondsOfADay = 24.0 * 60 * 60 * 1000;

std::function<double()>& Clock() {
  static std::function<double()> clock;
  return clock;
}

std::function<QString(double)>& LongDateWriter() {
  static std::function<QString(double)> writer;
  return writer;
}

QDate DayZero() {
  return {1899, 12, 30};
}

}  // namespace

double Now() {
  return Clock() ? Clock()() : FromDateTime(QDateTime::currentDateTime());
}

QString LongDate(double date) {
  if (LongDateWriter()) return LongDateWriter()(date);
  return QLocale::system().toString(ToDateTime(date).date(), QLocale::LongFormat);
}

QDateTime ToDateTime(double date) {
  // A date out of a damaged file may be anything; what the calendar cannot hold has no day.
  if (!(std::abs(date) < 1e8)) return {};
  const double days = std::trunc(date);
  const long milliseconds = RoundHalfEven(std::abs(date - days) * millisecondsOfADay);
  // Dates carry no time zone, and an hour that the summer time skips is an hour like any other.
  return QDateTime(DayZero().addDays(static_cast<qint64>(days)), QTime(0, 0), Qt::UTC).addMSecs(milliseconds);
}

double FromDateTime(const QDateTime& moment) {
  const auto days = static_cast<double>(DayZero().daysTo(moment.date()));
  const double time = moment.time().msecsSinceStartOfDay() / millisecondsOfADay;
  return days < 0 ? days - time : days + time;
}

QDate CalendarDay(double date) {
  if (std::isnan(date)) return DayZero();
  const QDate day = ToDateTime(date).date();
  if (day.isValid()) return std::clamp(day, FirstCalendarDay(), LastCalendarDay());
  return date < 0 ? FirstCalendarDay() : LastCalendarDay();
}

QDate FirstCalendarDay() {
  return {100, 1, 1};
}

QDate LastCalendarDay() {
  return {9999, 12, 31};
}

QString MonthName(int month) {
  return QLocale::system().standaloneMonthName(month);
}

void SetClock(std::function<double()> clock) {
  Clock() = std::move(clock);
}

void SetLongDate(std::function<QString(double)> longDate) {
  LongDateWriter() = std::move(longDate);
}

}  // namespace platform
