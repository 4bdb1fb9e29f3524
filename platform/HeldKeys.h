// Keys that are still down when the place that they went down in has gone: a photograph, a window.
#pragma once

#include <QtCore/QSet>
#include <QtGui/QKeyEvent>

namespace platform {

// Those of one place. It is told of each press and release there, and when the keyboard leaves it.
class HeldKeys {
 public:
  // Whether the event repeats a key that went down elsewhere: its work is done there, and must not go on
  // here.
  bool BeganElsewhere(const QKeyEvent& event);
  void Forget();

 private:
  // A key that has come up here, or seems to.
  struct Release {
    quint32 key = 0;
    quint64 time = 0;  // as the display tells it, in milliseconds
    bool wasDown = false;
  };

  bool Repeats(const QKeyEvent& press) const;

  QSet<quint32> down_;
  Release last_;
};

}  // namespace platform
