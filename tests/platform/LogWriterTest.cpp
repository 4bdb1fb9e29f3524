#include <atomic>
#include <stdexcept>

#include "platform/files/LogWriter.h"
#include "tests/support/Fixtures.h"

using platform::LogWriter;

namespace {

const std::string name = "journal.tql";

class LogWriterTest : public testing::Test {
 protected:
  LogWriter Writer(std::chrono::milliseconds retryAfter = std::chrono::hours(1)) {
    return LogWriter(
        folder.PathOf(name), [this](auto failure) { told.push_back(failure.value_or("well")); }, retryAfter);
  }

  fixture::Folder folder;
  fixture::Texts told;
};

TEST_F(LogWriterTest, TheNewestIsOnTheDiskWhenItWasWaitedForAndOlderOnesAreSkipped) {
  LogWriter writer = Writer();
  EXPECT_TRUE(writer.IsUpToDate() && writer.Wait());
  EXPECT_EQ(folder.Names(), fixture::Texts{});
  std::atomic<int> count = 0;
  for (int i = 0; i < 1000; ++i)
    writer.Put([&count, i] {
      ++count;
      return std::to_string(i);
    });
  EXPECT_TRUE(writer.Wait() && writer.IsUpToDate());
  EXPECT_EQ(folder.Read(name), "999");
  EXPECT_EQ(folder.Names(), fixture::Texts{name});
  const int written = count;
  EXPECT_LT(written, 1000);
  EXPECT_TRUE(writer.Wait());
  EXPECT_EQ(count, written) << "what is written is not written again";
}

TEST_F(LogWriterTest, NothingComesBehindWhatIsNewer) {
  LogWriter writer = Writer();
  for (int i = 0, seen = 0; i < 300; ++i) {
    writer.Put(std::to_string(i));
    const bool isThere = writer.IsUpToDate();
    const std::string read = folder.Read(name);
    EXPECT_TRUE(!isThere || read == std::to_string(i)) << read;
    if (read.empty()) continue;  // nothing is there yet
    EXPECT_TRUE(seen <= std::stoi(read) && std::stoi(read) <= i) << seen << " " << read;
    seen = std::stoi(read);
  }
  writer.Put("");
  EXPECT_TRUE(writer.Wait());
  EXPECT_EQ(folder.Names(), fixture::Texts{});
}

TEST_F(LogWriterTest, WhatFailedNeverComesBackOverWhatIsNewer) {
  LogWriter writer = Writer();
  for (unsigned i = 0; i < 100; ++i) {
    writer.Put("");
    EXPECT_TRUE(writer.Wait());
    folder.Block(name);
    writer.Put("older");
    usleep(i);  // into the midst of its failing
    writer.Put(std::to_string(i));
    folder.Unblock(name);
    writer.Wait();  // for a trial that may have begun before
    EXPECT_TRUE(writer.Wait());
    EXPECT_EQ(folder.Read(name), std::to_string(i));
  }
}

TEST_F(LogWriterTest, AFailureIsToldOnceAndItsEndToo) {
  LogWriter writer = Writer();
  folder.Block(name);
  for (const char* bytes : {"first", "second", ""}) {
    writer.Put(bytes);
    EXPECT_FALSE(writer.Wait() || writer.IsUpToDate());
  }
  EXPECT_TRUE(told.empty()) << "out of the event loop";
  QCoreApplication::processEvents();
  ASSERT_EQ(told.size(), 1u);
  EXPECT_NE(told[0].find(folder.PathOf(name)), std::string::npos) << told[0];
  writer.Put("third");
  EXPECT_FALSE(writer.Wait());
  folder.Unblock(name);
  EXPECT_TRUE(writer.Wait()) << "the way out tries once more";
  EXPECT_EQ(folder.Read(name), "third");
  QCoreApplication::processEvents();
  EXPECT_EQ(told, (fixture::Texts{told[0], "well"}));
}

TEST_F(LogWriterTest, WhatFailedIsTriedAgainByItself) {
  LogWriter writer = Writer(std::chrono::milliseconds(5));
  folder.Block(name);
  writer.Put("kept");
  EXPECT_TRUE(QTest::qWaitFor([&] { return !told.empty(); }));
  QTest::qWait(30);
  EXPECT_EQ(told.size(), 1u) << "several trials, one failure";
  folder.Unblock(name);
  EXPECT_TRUE(QTest::qWaitFor([&] { return told.size() == 2 && writer.IsUpToDate(); }));
  EXPECT_EQ(folder.Read(name), "kept");
}

TEST_F(LogWriterTest, WhatCannotBeMadeIsAFailureAndIsMadeAgain) {
  LogWriter writer = Writer();
  writer.Put([trials = 0]() mutable {
    if (++trials < 3) throw std::runtime_error("no memory");
    return std::string("made");
  });
  EXPECT_FALSE(writer.Wait());
  EXPECT_FALSE(writer.Wait());
  EXPECT_TRUE(writer.Wait());
  EXPECT_EQ(folder.Read(name), "made");
  QCoreApplication::processEvents();
  EXPECT_EQ(told, (fixture::Texts{"no memory", "well"}));
}

TEST_F(LogWriterTest, TheEndWaitsAndTellsNoMore) {
  Writer().Put("last");
  EXPECT_EQ(folder.Read(name), "last");
  Writer().Put("");
  folder.Block(name);
  Writer().Put("not to be written");
  QCoreApplication::processEvents();
  EXPECT_EQ(told, fixture::Texts{});
}

TEST_F(LogWriterTest, SignalsAreLeftToTheWindowThread) {
  const LogWriter writer = Writer();
  sigset_t one, before, pending;
  sigemptyset(&one);
  sigaddset(&one, SIGTERM);
  pthread_sigmask(SIG_BLOCK, &one, &before);
  EXPECT_FALSE(sigismember(&before, SIGTERM)) << "this thread takes them again";
  kill(getpid(), SIGTERM);  // would end the process if another thread took it
  QTest::qSleep(20);
  sigpending(&pending);
  EXPECT_TRUE(sigismember(&pending, SIGTERM));
  int taken = 0;
  sigwait(&one, &taken);
  pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

}  // namespace
