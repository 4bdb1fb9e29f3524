// The system's mouse pointer, read and driven.
//
// Places are logical pixels of the screen, with no reference to any window: the measure of the toolkit's own
// global positions. Where the display system lets no program drive the pointer, which is anywhere but on X11,
// it stays where it is and nothing is pressed.
#pragma once

#include <cstdint>

class cMouse {
 public:
  std::int32_t X() const;
  std::int32_t Y() const;
  void SetX(std::int32_t x) { MoveTo(x, Y()); }
  void SetY(std::int32_t y) { MoveTo(X(), y); }

  // Moves the pointer and returns when it is there. Throws platform::Failure (Overflow) for a place above
  // 32767, or one whose 65535-fold a 32-bit integer cannot hold.
  void MoveTo(std::int32_t x, std::int32_t y);

  // Presses and releases a button where the pointer is: 2 is the right one, 4 the middle one, and any other
  // value the left one.
  void Click(std::int32_t button);
};
