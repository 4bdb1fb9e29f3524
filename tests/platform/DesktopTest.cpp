// Boxes, keystrokes, failures that nobody guards and the ways out, through real events.
#include <csignal>
#include <stdexcept>

#include <QtTest/QTest>
#include <QtWidgets/QtWidgets>

#include "platform/Application.h"
#include "platform/Failure.h"
#include "platform/Keystroke.h"
#include "platform/WayOut.h"
#include "tests/support/Fixtures.h"

using platform::Answer;
using platform::Buttons;
using Texts = std::vector<std::string>;

namespace {

platform::Application& TheApplication() {
  return *static_cast<platform::Application*>(qApp);
}

// Lets `routine` run out of the event loop, as every handler does.
void RunFromTheEventLoop(const std::function<void()>& routine) {
  QTimer::singleShot(0, qApp, routine);
  QTest::qWait(20);
}

// Presses the key in the next message box; returns what the box answered.
Answer AnswerWith(Qt::Key key, const platform::Message& message, QString* textSeen = nullptr) {
  QTimer::singleShot(50, qApp, [=] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return ADD_FAILURE() << "no box came up", void();
    EXPECT_EQ(box->objectName(), u"MessageBox");
    EXPECT_EQ(box->textFormat(), Qt::PlainText);
    if (textSeen) *textSeen = box->text();
    QTest::keyClick(box, key);
  });
  return platform::ShowMessage(message);
}

struct KeyTaker : QLineEdit {
  void keyPressEvent(QKeyEvent* event) override { pressed.push_back(event->key()); }
  std::vector<int> pressed;
};

}  // namespace

TEST(MessageBox, EscapeAndTheDefaultAnswerAsTold) {
  QString text;
  EXPECT_EQ(AnswerWith(Qt::Key_Escape, {"Delete <b>\xC3\xA9</b>?", Buttons::YesNo}, &text), Answer::No);
  EXPECT_EQ(text, QStringLiteral("Delete <b>\u00E9</b>?"));
  EXPECT_EQ(AnswerWith(Qt::Key_Return, {"Delete?", Buttons::YesNo, platform::BoxIcon::Question}),
            Answer::Yes);
  EXPECT_EQ(AnswerWith(Qt::Key_Escape, {"Told.", Buttons::Ok}), Answer::Ok);
}

TEST(MessageBox, TheWindowUnderABoxMayGo) {
  auto* window = new QWidget;
  window->show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window));
  QTimer::singleShot(50, window, [window] { delete window; });
  EXPECT_EQ(platform::ShowMessage({"Delete?", Buttons::YesNo}), Answer::No);
}

TEST(Failure, AGuardedRoutineGoesOnWithItsNextStatement) {
  fixture::Answers answers;
  int steps = 0;
  platform::Guarded("Encryption Error:",
                    [] { throw platform::Failure(platform::FailureKind::InvalidArgument); });
  platform::Guarded("Encryption Error:", [&] { ++steps; });
  EXPECT_EQ(answers.texts(), Texts{"Encryption Error:Invalid procedure call or argument"});
  EXPECT_EQ(steps, 1);
}

TEST(Keystroke, TheKeyComesAfterTheCommand) {
  QWidget window;
  KeyTaker edit;
  edit.setParent(&window);
  window.show();
  edit.setFocus();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  platform::SendKey(Qt::Key_F1);
  EXPECT_TRUE(edit.pressed.empty());
  QTest::qWait(10);
  EXPECT_EQ(edit.pressed, std::vector<int>{Qt::Key_F1});
  window.hide();
  EXPECT_NO_THROW(platform::SendKey(Qt::Key_F1));
}

TEST(Application, AFailureThatNobodyGuardsIsShownAndEndsTheProcess) {
  fixture::Answers answers;
  const fixture::End end;
  int stored = 0;
  TheApplication().SetLastWill([&] { ++stored; });
  RunFromTheEventLoop([] { throw platform::Failure(platform::FailureKind::DiskFull, "/a/b"); });
  EXPECT_EQ(answers.last(), "The disk is full: /a/b");
  EXPECT_EQ(answers.messages.back().icon, platform::BoxIcon::Stop);
  RunFromTheEventLoop([] { throw 1; });
  EXPECT_EQ(answers.messages.size(), 2u);
  EXPECT_EQ(stored, 2);
  EXPECT_EQ(end.count, 2);
  TheApplication().SetLastWill({});
}

TEST(Application, ItDiesOnlyOnce) {
  fixture::Answers answers;
  const fixture::End end;
  TheApplication().SetLastWill([] {
    RunFromTheEventLoop([] { throw std::runtime_error("second"); });
    throw std::runtime_error("third");
  });
  RunFromTheEventLoop([] { throw std::runtime_error("first"); });
  EXPECT_EQ(answers.texts(), Texts{"first"});
  EXPECT_EQ(end.count, 1);
  TheApplication().SetLastWill({});
}

TEST(WayOut, EverySignalAsksAnewButNeverTwiceAtOnce) {
  int asked = 0;
  platform::ListenForTheWayOut([&] {
    ++asked;
    std::raise(SIGHUP);
    QTest::qWait(20);
  });
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    std::raise(signal);
    QTest::qWait(50);
  }
  EXPECT_EQ(asked, 3);
  platform::ListenForTheWayOut({});
}
