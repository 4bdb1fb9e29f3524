#include <QtGui/QCursor>

#include "platform/cMouse.h"
#include "tests/support/Fixtures.h"

// What the pointer does for real, only a display system can show: see the tour.
TEST(Pointer, TellsThePlaceOnTheScreenAndLeavesItWhereNoProgramMayMoveIt) {
  cMouse mouse;
  QCursor::setPos(123, 45);
  EXPECT_EQ(mouse.X(), 123);
  EXPECT_EQ(mouse.Y(), 45);
  mouse.MoveTo(32767, -32768);
  mouse.SetX(7);
  mouse.Click(2);
  EXPECT_EQ(QCursor::pos(), QPoint(123, 45));
}

TEST(Pointer, APlaceAbove32767Overflows) {
  cMouse mouse;
  for (const auto& [x, y] : {std::pair{32768, 0}, {0, 32768}, {-32769, 0}, {0x7FFFFFFF, 0}})
    fixture::ExpectFailure(platform::FailureKind::Overflow, "Overflow", [&] { mouse.MoveTo(x, y); });
}
