// Which thread saves when the display has gone, and who waits for whom. The toolkit's warnings are given by
// the tests, on the threads that the toolkit gives them on; each lets its thread end the process when it
// returns.
#include <array>
#include <atomic>
#include <chrono>
#include <thread>

#include "platform/desktop/WayOut.h"
#include "tests/support/Fixtures.h"

namespace {

using namespace std::chrono_literals;

constexpr char Broke[] = "The Wayland connection broke. Did the Wayland compositor die?";
constexpr char Error[] = "The Wayland connection experienced a fatal error: Invalid argument";

// A thread of the toolkit's own that warns.
class Warning {
 public:
  explicit Warning(const char* text)
      : thread_([this, text] {
          isWarning = true;
          qWarning("%s", text);
          mayEndTheProcess = true;
        }) {}
  ~Warning() { thread_.join(); }
  Q_DISABLE_COPY_MOVE(Warning)

  std::atomic<bool> isWarning = false, mayEndTheProcess = false;

 private:
  std::thread thread_;  // the last one: it uses the others
};

struct Saves {
  std::atomic<int> count = 0, ended = 0;
  std::atomic<std::thread::id> thread;
};

// Counts the saves; each lasts a while, in which nobody may end the process.
void Listen(Saves& saves, const std::function<bool()>& isFree, std::chrono::milliseconds patience = 10s) {
  platform::ListenForTheLostDisplay(
      [&saves, isFree] {
        ++saves.count;
        saves.thread = std::this_thread::get_id();
        for (int i = 0; i < 20; ++i) {
          EXPECT_FALSE(isFree());
          std::this_thread::sleep_for(5ms);
        }
        ++saves.ended;
      },
      patience);
}

TEST(LostDisplay, TheWindowThreadSavesForTheOneThatWarns) {
  for (const char* text : {Broke, Error, "The X11 connection broke (error 1). Did the X11 server die?"}) {
    Saves saves;
    std::optional<Warning> warning;
    Listen(saves, [&] { return warning->mayEndTheProcess.load(); });
    qWarning("Another warning");
    QCoreApplication::processEvents();
    EXPECT_EQ(saves.count, 0);
    warning.emplace(text);
    EXPECT_TRUE(QTest::qWaitFor([&] { return warning->mayEndTheProcess.load(); }));
    EXPECT_EQ(saves.count, 1) << text;
    EXPECT_EQ(saves.thread.load(), std::this_thread::get_id()) << text;
  }
}

TEST(LostDisplay, AWarningBesideTheSaveWaitsForItsEnd) {
  Saves saves;
  std::optional<Warning> warning;
  Listen(saves, [&] {
    if (!warning) warning.emplace(Error);
    while (!warning->isWarning) std::this_thread::yield();
    return warning->mayEndTheProcess.load();
  });
  qWarning("%s", Broke);
  warning.reset();
  EXPECT_EQ(saves.count, 1);
  EXPECT_EQ(saves.thread.load(), std::this_thread::get_id());
}

TEST(LostDisplay, AWindowThreadThatHangsIsNotWaitedForAndThenWaitsItself) {
  Saves saves;
  Listen(
      saves, [] { return false; }, 300ms);
  Warning warning(Broke);
  while (saves.count == 0) std::this_thread::sleep_for(1ms);  // no event is served meanwhile
  EXPECT_NE(saves.thread.load(), std::this_thread::get_id());
  EXPECT_FALSE(warning.mayEndTheProcess);
  qWarning("%s", Error);
  EXPECT_EQ(saves.ended, 1) << "the save under way was not waited for";
  EXPECT_EQ(saves.count, 1);
  QCoreApplication::processEvents();
  EXPECT_EQ(saves.count, 1);
}

TEST(LostDisplay, AWriteToADeadServerEndsNothing) {
  platform::ListenForTheLostDisplay([] {});
  std::array<int, 2> ends{};
  ASSERT_EQ(pipe(ends.data()), 0);
  close(ends[0]);
  EXPECT_EQ(write(ends[1], "x", 1), -1);
  close(ends[1]);
}

}  // namespace
