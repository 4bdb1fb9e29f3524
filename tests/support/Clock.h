// What stands in for the clock and the long date in a test.
#pragma once

#include "platform/Dates.h"

namespace fixture {

// A clock that stands at a date (days since 30 December 1899) until it is moved, and long dates that read the
// same on every machine: "day 45000".
class Clock {
 public:
  explicit Clock(double date) : now(date) {
    platform::SetClock([this] { return now; });
    platform::SetLongDate([](double day) { return QStringLiteral("day %1").arg(static_cast<long>(day)); });
  }
  ~Clock() {
    platform::SetClock({});
    platform::SetLongDate({});
  }
  Q_DISABLE_COPY_MOVE(Clock)

  double now;
};

}  // namespace fixture
