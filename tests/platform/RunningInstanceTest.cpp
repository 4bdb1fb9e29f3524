
#include <QtGui/qpa/qwindowsysteminterface.h>
#include <QtNetwork/QLocalServer>
#include <QtNetwork/QLocalSocket>

#include "platform/desktop/RunningInstance.h"
#include "tests/support/Fixtures.h"

using namespace std::chrono_literals;
using platform::ActivationToken;
using platform::Meeting;
using platform::RunningInstance;

namespace {

// A first instance that keeps what it was asked.
struct First : RunningInstance {
  First() {
    connect(this, &RunningInstance::ActivationRequested, this, [this](const auto& token) { asked << token; });
  }
  QList<ActivationToken> asked;
};

// A first instance on a thread of its own, which is too busy to answer until it ends.
class BusyInstance {
 public:
  BusyInstance() {
    thread_->start();
    isThere_.acquire();
  }
  ~BusyInstance() {
    End();
    thread_->wait();
  }
  Q_DISABLE_COPY_MOVE(BusyInstance)
  void End() { mayEnd_.release(); }

 private:
  QSemaphore isThere_, mayEnd_;
  const std::unique_ptr<QThread> thread_{QThread::create([this] {
    const RunningInstance instance;
    EXPECT_TRUE(instance.IsFirst());
    isThere_.release();
    mayEnd_.acquire();
  })};
};

// What another user does, as far as root can be one: the nobody of the system.
template <class Action>
void AsAnotherUser(const Action& action, uid_t user = geteuid() == 0 ? 65534 : geteuid()) {
  const uid_t before = geteuid();
  EXPECT_EQ(seteuid(user), 0);
  action();
  EXPECT_EQ(seteuid(before), 0);
}

// What one who says `words` gets back, until it is shown the door.
QByteArray Say(const RunningInstance& instance, const QByteArray& words, uid_t user = geteuid()) {
  QLocalSocket socket;
  socket.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
  AsAnotherUser([&] { socket.connectToServer(instance.Name()); }, user);
  socket.write(words);
  EXPECT_TRUE(QTest::qWaitFor([&] { return socket.state() == QLocalSocket::UnconnectedState; }, 30000));
  return socket.readAll();
}

}  // namespace

TEST(RunningInstance, OneForEachProgramFolder) {
  const fixture::Folder here;
  std::optional<RunningInstance> first(std::in_place);
  EXPECT_TRUE(first->IsFirst());
  EXPECT_FALSE(RunningInstance().IsFirst());
  const fixture::Folder elsewhere;
  EXPECT_TRUE(RunningInstance().IsFirst());
  ASSERT_EQ(symlink(here.path().c_str(), elsewhere.PathOf("link").c_str()), 0);
  platform::SetProgramFolder(elsewhere.PathOf("link"));
  RunningInstance second;
  EXPECT_FALSE(second.IsFirst()) << "another path to the same folder";
  EXPECT_EQ(second.HandOver({}), Meeting::HandedOver);
  QProcess browser;  // outlives the program that started it
  browser.start(QStringLiteral("sleep"), {QStringLiteral("60")});
  ASSERT_TRUE(browser.waitForStarted());
  first.reset();
  EXPECT_TRUE(RunningInstance().IsFirst());
  EXPECT_TRUE(here.Names().empty());
  browser.kill();
  browser.waitForFinished();
}

TEST(RunningInstance, ABusyOneIsWaitedForAndItsPlaceTakenWhenItEnds) {
  const fixture::Folder folder;
  BusyInstance busy;
  EXPECT_EQ(RunningInstance(200ms).HandOver({}), Meeting::Silent);
  RunningInstance second;
  EXPECT_FALSE(second.IsFirst());
  QTimer::singleShot(300, [&] { busy.End(); });
  EXPECT_EQ(second.HandOver({}), Meeting::IsFirst);
  RunningInstance third;
  EXPECT_FALSE(second.IsFirst() && third.IsFirst());
  EXPECT_EQ(third.HandOver({}), Meeting::HandedOver);
}

TEST(RunningInstance, AnAnswerThatTakesLongIsWaitedForAndAskedForOnce) {
  const fixture::Folder folder;
  First first;
  Meeting meeting = Meeting::Silent;
  const std::unique_ptr<QThread> waiting(QThread::create([&] { meeting = RunningInstance().HandOver({}); }));
  waiting->start();
  QThread::msleep(2200);  // a slow disk
  while (!waiting->isFinished()) QTest::qWait(5);
  EXPECT_EQ(meeting, Meeting::HandedOver);
  EXPECT_EQ(first.asked.size(), 1);
}

TEST(RunningInstance, WhoHasTheNameDecidesNothing) {
  const fixture::Folder folder;
  ASSERT_EQ(chmod(folder.path().c_str(), 0755), 0);
  const QString name = RunningInstance().Name();
  std::optional<QLocalServer> stranger(std::in_place);
  stranger->setSocketOptions(QLocalServer::AbstractNamespaceOption);
  AsAnotherUser([&] { ASSERT_TRUE(stranger->listen(name)); });
  const RunningInstance first;
  EXPECT_TRUE(first.IsFirst());
  EXPECT_FALSE(RunningInstance().IsFirst());
  EXPECT_EQ(RunningInstance(200ms).HandOver({}), geteuid() ? Meeting::Silent : Meeting::AnotherUser);
  stranger.reset();
  EXPECT_EQ(RunningInstance().HandOver({}), Meeting::HandedOver) << "it takes the name as soon as it can";
}

TEST(RunningInstance, AnotherUserIsNotFirstEither) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can be two users";
  const fixture::Folder folder;
  ASSERT_EQ(chmod(folder.path().c_str(), 0755), 0);
  First first;
  AsAnotherUser([] {
    RunningInstance other(200ms);
    EXPECT_FALSE(other.IsFirst());
    EXPECT_EQ(other.HandOver({}), Meeting::AnotherUser);
  });
  EXPECT_TRUE(first.asked.empty());
}

TEST(RunningInstance, TheNameDecidesWhereTheDiskKnowsNoLocks) {
  const fixture::Folder folder;
  folder.Write("file", "");
  platform::SetProgramFolder(folder.PathOf("file"));  // what is no folder is not locked
  std::optional<RunningInstance> first(std::in_place);
  EXPECT_TRUE(first->IsFirst());
  RunningInstance second;
  EXPECT_FALSE(second.IsFirst());
  EXPECT_EQ(second.HandOver({}), Meeting::HandedOver);
  first.reset();
  EXPECT_EQ(second.HandOver({}), Meeting::IsFirst);
}

TEST(RunningInstance, TheTokenIsHandedOverAndStrangeWordsAreShownTheDoor) {
  const fixture::Folder folder;
  First first;
  for (const QByteArray& words : {QByteArray("\n"), QByteArray("activate\n"), QByteArray("activate x y\n"),
                                  QByteArray("activate 99999999999 00\n"), QByteArray("activate 1 2 3\n"),
                                  QByteArray(100000, '\0'), QByteArray("activate 1")})
    EXPECT_EQ(Say(first, words), "") << words.left(30).toStdString();
  if (geteuid() == 0) Say(first, "activate 1 \n", 65534);
  EXPECT_TRUE(first.asked.empty());
  EXPECT_EQ(RunningInstance().HandOver({"launcher-1 \"x\"\n_TIME77", 77}), Meeting::HandedOver);
  ASSERT_EQ(first.asked.size(), 1);
  EXPECT_EQ(first.asked[0].startupId, "launcher-1 \"x\"\n_TIME77");
  EXPECT_EQ(first.asked[0].timestamp, 77u);
  QWidget behind;
  behind.show();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&behind));
  QWindowSystemInterface::handleWindowActivated(nullptr);
  EXPECT_EQ(RunningInstance().HandOver({}), Meeting::Announced) << "no window of it has the keyboard";
}

TEST(RunningInstance, TheDesktopsVariablesAreRead) {
  qputenv("DESKTOP_STARTUP_ID", "panel/1-2_TIME4000000000");
  qputenv("XDG_ACTIVATION_TOKEN", "abc");
  for (const auto& [display, id] : {std::pair{"", "panel/1-2_TIME4000000000"}, {"wayland-0", "abc"}}) {
    qputenv("WAYLAND_DISPLAY", display);
    EXPECT_EQ(RunningInstance::TokenOfThisStart().startupId, id);
    EXPECT_EQ(RunningInstance::TokenOfThisStart().timestamp, 4000000000u);
  }
  for (const char* name : {"DESKTOP_STARTUP_ID", "XDG_ACTIVATION_TOKEN", "WAYLAND_DISPLAY"}) qunsetenv(name);
}

TEST(RunningInstance, TheDialogComesAlongWithItsWindow) {
  QWidget window, other;
  QDialog dialog(&window);
  window.show();
  dialog.open();
  window.showMinimized();
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  platform::BringToFront(window, {});
  EXPECT_FALSE(window.isMinimized());
  EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
}
