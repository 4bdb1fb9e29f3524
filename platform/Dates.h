// Dates of pages: days since 30 December 1899, the time of day as the fraction, which counts away from zero
// before that day.
#pragma once

#include <functional>

#include <QtCore/QDateTime>

namespace platform {

// The present date and time of the local clock.
double Now();
// The date in the user's own long form.
QString LongDate(double date);

// In UTC, since a date carries no time zone. A number that is no date (more than 10 to the 8th days away, not
// a number) gives an invalid moment, and an empty long date.
QDateTime ToDateTime(double date);
double FromDateTime(const QDateTime& moment);

// The day of the date as calendars and the index show it, within the years 100 to 9999. A date beyond them
// gives the nearest day in them, no number gives day zero.
QDate CalendarDay(double date);
QDate FirstCalendarDay();
QDate LastCalendarDay();
// The full name of a month, 1 to 12, in the user's language, as it stands alone.
QString MonthName(int month);

// The seams: a clock and a long date in the place of the desktop's; empty functions restore them.
void SetClock(std::function<double()> clock);
void SetLongDate(std::function<QString(double)> longDate);

}  // namespace platform
