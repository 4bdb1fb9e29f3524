#include <array>

#include "platform/files/FileAside.h"
#include "platform/files/KnownFiles.h"
#include "tests/support/Fixtures.h"

using platform::FileAside;

namespace {

const std::string name = "j00000.tqf";

class FileAsideTest : public testing::Test {
 protected:
  // The bytes live only as long as the thread needs them.
  void Begin(FileAside& aside, const std::string& text) const {
    struct Holder {
      std::string bytes;
      std::array<std::string_view, 2> pieces;
    };
    const auto holder = std::make_shared<Holder>(Holder{text, {}});
    const std::string_view bytes = holder->bytes;
    holder->pieces = {bytes.substr(0, 1), bytes.substr(1)};
    aside.Begin(folder.PathOf(name), {holder, holder->pieces});
  }

  fixture::Folder folder;
  int ended = 0;
};

TEST_F(FileAsideTest, WhatIsTakenIsThereAndKnownAndItsEndIsToldOnlyBefore) {
  FileAside aside([this] { ++ended; });
  for (int i = 10; i < 60; ++i) {
    Begin(aside, std::to_string(i));
    EXPECT_TRUE(aside.IsBusy());
    const bool waits = i % 2 == 0;
    EXPECT_TRUE(!waits || QTest::qWaitFor([&] { return ended > 0; }));
    EXPECT_TRUE(i % 4 != 1 || aside.Wait(std::chrono::hours(1)));
    EXPECT_TRUE(aside.Take());
    EXPECT_FALSE(aside.IsBusy());
    EXPECT_EQ(folder.Read(name), std::to_string(i));
    EXPECT_FALSE(platform::KeepChanged(folder.PathOf(name)));
    QCoreApplication::processEvents();
    EXPECT_EQ(std::exchange(ended, 0), waits) << i;
  }
  Begin(aside, "99");  // its end is waited for by the destructor
}

TEST_F(FileAsideTest, ADiskThatFailsAndAnothersFileLeaveWhatWasThere) {
  FileAside aside([this] { ++ended; });
  Begin(aside, "10");
  EXPECT_TRUE(aside.Take());
  folder.Block(name + ".thornquill-unfinished");
  Begin(aside, "11");
  EXPECT_THROW(aside.Take(), platform::Failure);
  EXPECT_EQ(folder.Read(name), "10");
  folder.Unblock(name + ".thornquill-unfinished");
  folder.Write(name, "another's");
  Begin(aside, "12");
  EXPECT_FALSE(aside.Take());
  EXPECT_EQ(folder.Read(name), "another's");
  EXPECT_TRUE(platform::KeepChanged(folder.PathOf(name)));
  EXPECT_FALSE(platform::KeepChanged(folder.PathOf(name))) << "its second name is no change";
  Begin(aside, "13");
  EXPECT_TRUE(aside.Take());
  EXPECT_EQ(folder.Names(), (fixture::Texts{name, name + ".1.other"}));
}

}  // namespace
