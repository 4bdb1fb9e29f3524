// Boxes, failures that nobody guards and the ways out, through real events.
#include <stdexcept>

#include <QtGui/private/qguiapplication_p.h>

#include "platform/desktop/Application.h"
#include "platform/desktop/WayOut.h"
#include "tests/support/Fixtures.h"

using platform::Answer;
using platform::Buttons;

namespace {

// Lets `routine` run out of the event loop, as every handler does.
void RunFromTheEventLoop(const std::function<void()>& routine) {
  QTimer::singleShot(0, qApp, routine);
  QTest::qWait(20);
}

// What the coming message box answers to that key.
Answer AnswerWith(Qt::Key key, const platform::Message& message) {
  QTimer::singleShot(50, qApp, [=] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_TRUE(box);
    EXPECT_EQ(box->textFormat(), Qt::PlainText);
    EXPECT_EQ(box->text().toStdString(), message.text);
    QTest::keyClick(box, key);
  });
  return platform::ShowMessage(message);
}

}  // namespace

TEST(MessageBox, EscapeAndEnterAnswerAsToldAndTheWindowUnderItMayGo) {
  EXPECT_EQ(AnswerWith(Qt::Key_Escape, {"Delete <b>\xC3\xA9</b>?", Buttons::YesNo}), Answer::No);
  EXPECT_EQ(AnswerWith(Qt::Key_Return, {"Delete?", Buttons::YesNo}), Answer::Yes);
  EXPECT_EQ(AnswerWith(Qt::Key_Escape, {"Told.", Buttons::Ok}), Answer::Ok);
  auto* window = new QWidget;
  window->show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window));
  QTimer::singleShot(50, window, [window] { delete window; });
  EXPECT_EQ(platform::ShowMessage({"Delete?", Buttons::YesNo}), Answer::No);
}

TEST(Application, AFailureThatNobodyGuardsIsShownStoredAndEndsTheProcessOnce) {
  fixture::Answers answers;
  const fixture::End end;
  auto& application = static_cast<platform::Application&>(*qApp);
  int stored = 0;
  application.SetLastWill([&] {
    ++stored;
    RunFromTheEventLoop([] { throw std::runtime_error("second"); });
    throw std::runtime_error("third");
  });
  RunFromTheEventLoop([] { throw platform::Failure(platform::FailureKind::DiskFull, "/a/b"); });
  EXPECT_EQ(answers.texts(), fixture::Texts{"The disk is full: /a/b"});
  EXPECT_EQ(answers.messages[0].icon, platform::BoxIcon::Stop);
  EXPECT_EQ(stored, 1);
  EXPECT_EQ(end.count, 1);
  application.SetLastWill({});
  RunFromTheEventLoop([] { throw 1; });
  EXPECT_EQ(end.count, 2);
}

TEST(Application, LeavesNoTraceOfTheToolkitNorOfTheMemory) {
  QSettings settings(QSettings::UserScope, QStringLiteral("QtProject"));
  settings.setValue(QStringLiteral("FileDialog/history"), 1);
  settings.sync();
  EXPECT_EQ(settings.status(), QSettings::AccessError) << settings.fileName().toStdString();
  rlimit limit{};
  getrlimit(RLIMIT_CORE, &limit);
  EXPECT_EQ(limit.rlim_cur, 0u);
}

TEST(WayOut, EverySignalAsksAnewButNeverTwiceAtOnce) {
  int asked = 0;
  // One that is ignored, as under nohup or in the background of a script, stays ignored.
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) std::signal(signal, SIG_DFL);
  platform::ListenForTheWayOut([&] {
    ++asked;
    std::raise(SIGHUP);
    QTest::qWait(20);
  });
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    const int before = asked;
    std::raise(signal);
    // cppcheck-suppress unreachableCode  ; the signal is caught
    EXPECT_TRUE(QTest::qWaitFor([&] { return asked > before; }));
  }
  EXPECT_EQ(asked, 3);
  QEvent end(QEvent::Quit);
  QCoreApplication::sendEvent(qApp, &end);
  EXPECT_EQ(asked, 4) << "the end of the session";
  platform::ListenForTheWayOut({});
}

TEST(WayOut, ASessionThatAsksForASaveIsNoEnd) {
  int asked = 0, saved = 0;
  platform::ListenForTheWayOut([&] { ++asked; }, [&] { return ++saved > 0; });
  QGuiApplicationPrivate::instance()->commitData();
  EXPECT_EQ(std::pair(asked, saved), std::pair(0, 1));
  platform::ListenForTheWayOut({});
}

// As Wayland delivers it: the list goes when the stroke is offered as a shortcut, and the dialog gets the
// key.
TEST(PopupEscape, TheStrokeThatClosesAListClosesNoDialog) {
  QDialog dialog;
  QComboBox choices(&dialog);
  choices.addItem(u"one"_qs);
  dialog.show();
  const auto stroke = [&](QEvent::Type type, QObject* receiver, quint64 time) {
    QKeyEvent key(type, Qt::Key_Escape, {});
    key.setTimestamp(time);
    QCoreApplication::sendEvent(receiver, &key);
  };
  choices.showPopup();
  stroke(QEvent::ShortcutOverride, choices.view(), 7);
  choices.hidePopup();
  stroke(QEvent::KeyPress, &dialog, 7);
  EXPECT_TRUE(dialog.isVisible());
  stroke(QEvent::KeyPress, &dialog, 8);
  EXPECT_FALSE(dialog.isVisible());
}
