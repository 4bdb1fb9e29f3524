#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>
#include <QtGui/QMouseEvent>
#include <QtTest/QTest>
#include <QtWidgets/QWidget>

#include "platform/cMouse.h"
#include "tests/support/Fixtures.h"

namespace {

bool OnX11() {
  return QGuiApplication::platformName() == u"xcb";
}

class Target : public QWidget {
 public:
  std::vector<std::string> seen;  // press and release of each button, "L", "R" or "M"

 protected:
  void mousePressEvent(QMouseEvent* event) override { Note("down ", event); }
  void mouseReleaseEvent(QMouseEvent* event) override { Note("up ", event); }

 private:
  void Note(const char* what, const QMouseEvent* event) {
    const char* button = event->button() == Qt::LeftButton    ? "L"
                         : event->button() == Qt::RightButton ? "R"
                                                              : "M";
    seen.push_back(what + std::string(button));
  }
};

}  // namespace

TEST(Pointer, TellsThePlaceOnTheScreenAndLeavesItWhereNoProgramMayMoveIt) {
  if (OnX11()) GTEST_SKIP() << "a program may move it here";
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

// Run on a virtual display: nothing in the program moves the pointer or presses a button.
TEST(Pointer, MovesAndPressesOnAScreen) {
  if (!OnX11()) GTEST_SKIP() << "only a display system can show it";
  Target target;
  target.setGeometry(100, 100, 300, 200);
  target.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&target));
  cMouse mouse;
  mouse.MoveTo(150, 160);
  EXPECT_EQ(QPoint(mouse.X(), mouse.Y()), QPoint(150, 160));
  mouse.SetX(200);
  EXPECT_EQ(QPoint(mouse.X(), mouse.Y()), QPoint(200, 160));
  mouse.SetY(170);
  EXPECT_EQ(QPoint(mouse.X(), mouse.Y()), QPoint(200, 170));
  for (const std::int32_t button : {1, 2, 4, 0}) mouse.Click(button);
  const std::vector<std::string> all = {"down L", "up L", "down R", "up R",
                                        "down M", "up M", "down L", "up L"};
  EXPECT_TRUE(QTest::qWaitFor([&] { return target.seen.size() >= all.size(); }));
  EXPECT_EQ(target.seen, all);
}
