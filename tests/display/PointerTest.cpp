// What the pointer class does for real: nothing in the program moves the pointer or presses a button.
#include "platform/desktop/cMouse.h"
#include "tests/support/Fixtures.h"

namespace {

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

TEST(Pointer, MovesAndPressesOnAScreen) {
  ASSERT_EQ(QGuiApplication::platformName(), u"xcb") << "to be run by scripts/on-virtual-display";
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
