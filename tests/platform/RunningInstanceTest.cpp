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
    connect(this, &RunningInstance::ActivationRequested, this, [this](const auto& token) { asked << token; });
  }
  QList<ActivationToken> asked;
};

// A second start, which waits for its answer in a thread of its own, as a process would.
bool HandOver(const ActivationToken& token) {
  bool done = false;
  const std::unique_ptr<QThread> thread(QThread::create([&] { done = RunningInstance::HandOver(token); }));
  thread->start();
  while (!thread->isFinished()) QTest::qWait(5);
  return done;
}

// What a stranger who says `words` gets back, until it is shown the door. Only root can be another user.
QByteArray Say(const RunningInstance& instance, const QByteArray& words, uid_t user = geteuid()) {
  QLocalSocket stranger;
  stranger.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
  const uid_t before = geteuid();
  EXPECT_EQ(seteuid(user), 0);
  stranger.connectToServer(instance.Name());
  EXPECT_EQ(seteuid(before), 0);
  stranger.write(words);
  EXPECT_TRUE(QTest::qWaitFor([&] { return stranger.state() == QLocalSocket::UnconnectedState; }, 4000));
  return stranger.readAll();
}

}  // namespace

TEST(RunningInstance, OneForEachProgramFolder) {
  const fixture::Folder here;
  EXPECT_FALSE(RunningInstance::HandOver({})) << "nobody is there";
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

TEST(RunningInstance, TheTokenIsHandedOverAndStrangeWordsAreShownTheDoor) {
  const fixture::Folder folder;
  First first;
  for (const QByteArray& words : {QByteArray("\n"), QByteArray("activate\n"), QByteArray("activate x y\n"),
                                  QByteArray("activate 99999999999 00\n"), QByteArray("activate 1 2 3\n"),
                                  QByteArray(100000, '\0'), QByteArray("activate 1")})
    EXPECT_EQ(Say(first, words), "") << words.left(30).toStdString();
  if (geteuid() == 0) Say(first, "activate 1 \n", 65534);
  EXPECT_TRUE(first.asked.empty());
  EXPECT_TRUE(HandOver({"launcher-1 \"x\"\n_TIME77", 77}));
  ASSERT_EQ(first.asked.size(), 1);
  EXPECT_EQ(first.asked[0].startupId, "launcher-1 \"x\"\n_TIME77");
  EXPECT_EQ(first.asked[0].timestamp, 77u);
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
