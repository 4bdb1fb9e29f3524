#include <memory>
#include <optional>
#include <unistd.h>

#include <QtNetwork/QLocalSocket>
#include <QtTest/QTest>
#include <QtWidgets/QtWidgets>

#include "platform/RunningInstance.h"
#include "tests/support/Fixtures.h"

using platform::ActivationToken;
using platform::RunningInstance;

namespace {

// A first instance that keeps what it was asked.
struct First : RunningInstance {
  First() {
    connect(this, &RunningInstance::ActivationRequested, this,
            [this](const ActivationToken& token) { asked.push_back(token); });
  }
  std::vector<ActivationToken> asked;
};

// A second start, which waits for its answer in a thread of its own, as a process would.
bool HandOver(const ActivationToken& token) {
  bool done = false;
  const std::unique_ptr<QThread> thread(QThread::create([&] { done = RunningInstance::HandOver(token); }));
  thread->start();
  while (!thread->isFinished()) QTest::qWait(5);
  return done;
}

// What a stranger who says `words` gets back, until it is shown the door.
QByteArray Say(const RunningInstance& instance, const QByteArray& words) {
  QLocalSocket stranger;
  stranger.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
  stranger.connectToServer(instance.Name());
  stranger.write(words);
  EXPECT_TRUE(QTest::qWaitFor([&] { return stranger.state() == QLocalSocket::UnconnectedState; }, 4000));
  return stranger.readAll();
}

// A variable of the desktop's, for as long as it lives.
class Variable {
 public:
  Variable(const char* name, const QByteArray& value) : name_(name), before_(qgetenv(name)) {
    qputenv(name, value);
  }
  ~Variable() { before_.isEmpty() ? qunsetenv(name_) : qputenv(name_, before_); }

 private:
  const char* name_;
  QByteArray before_;
};

}  // namespace

TEST(RunningInstance, OneForEachProgramFolder) {
  const fixture::Folder here;
  std::optional<RunningInstance> first(std::in_place);
  EXPECT_TRUE(first->IsFirst());
  EXPECT_FALSE(RunningInstance().IsFirst());
  platform::SetProgramFolder(here.path() + "/../" + here.path().substr(here.path().rfind('/') + 1));
  EXPECT_FALSE(RunningInstance().IsFirst()) << "another path to the same folder";
  {
    const fixture::Folder elsewhere;
    EXPECT_TRUE(RunningInstance().IsFirst());
  }
  platform::SetProgramFolder(here.path());
  first.reset();
  EXPECT_TRUE(RunningInstance().IsFirst());
  EXPECT_TRUE(here.Names().empty());
}

TEST(RunningInstance, TheTokenIsHandedOver) {
  const fixture::Folder folder;
  EXPECT_FALSE(RunningInstance::HandOver({})) << "nobody is there";
  First first;
  EXPECT_TRUE(HandOver({"launcher-1 \"x\"\n_TIME77", 77}));
  ASSERT_EQ(first.asked.size(), 1u);
  EXPECT_EQ(first.asked[0].startupId, "launcher-1 \"x\"\n_TIME77");
  EXPECT_EQ(first.asked[0].timestamp, 77u);
  EXPECT_TRUE(HandOver({{}, 5}));
  EXPECT_EQ(first.asked.back().timestamp, 5u);
}

TEST(RunningInstance, StrangeWordsAreShownTheDoor) {
  const fixture::Folder folder;
  First first;
  for (const QByteArray& words : {QByteArray("\n"), QByteArray("activate\n"), QByteArray("activate x y\n"),
                                  QByteArray("activate 99999999999 00\n"), QByteArray("activate 1 2 3\n"),
                                  QByteArray(100000, '\0'), QByteArray("activate 1")})
    EXPECT_EQ(Say(first, words), "") << words.left(30).toStdString();
  EXPECT_TRUE(first.asked.empty());
  EXPECT_TRUE(HandOver({})) << "still at work";
}

TEST(RunningInstance, AnotherUserCommandsNothing) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can be two users";
  const fixture::Folder folder;
  First first;
  QLocalSocket stranger;
  stranger.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
  ASSERT_EQ(seteuid(65534), 0);
  stranger.connectToServer(first.Name());
  ASSERT_EQ(seteuid(0), 0);
  stranger.write("activate 1 \n");
  QTest::qWait(100);
  EXPECT_EQ(stranger.state(), QLocalSocket::UnconnectedState);
  EXPECT_TRUE(first.asked.empty());
}

TEST(RunningInstance, TheDesktopsVariablesAreRead) {
  const Variable x11("DESKTOP_STARTUP_ID", "panel/1-2_TIME4000000000");
  const Variable wayland("XDG_ACTIVATION_TOKEN", "abc");
  {
    const Variable session("WAYLAND_DISPLAY", "");
    const ActivationToken token = RunningInstance::TokenOfThisStart();
    EXPECT_EQ(token.startupId, "panel/1-2_TIME4000000000");
    EXPECT_EQ(token.timestamp, 4000000000u);
  }
  const Variable session("WAYLAND_DISPLAY", "wayland-0");
  EXPECT_EQ(RunningInstance::TokenOfThisStart().startupId, "abc");
}

TEST(RunningInstance, TheDialogComesAlongWithItsWindow) {
  QWidget window;
  QDialog dialog(&window);
  QWidget other;
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
