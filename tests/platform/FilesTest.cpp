#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/support/Fixtures.h"

using fixture::ExpectFailure;
using fixture::Folder;
using fixture::Texts;
using platform::FailureKind;

namespace {

// As somebody whom the permissions of files bind; root is bound by none.
void RunPowerless(const Folder& folder, const std::function<void()>& routine) {
  const uid_t before = geteuid(), powerless = before == 0 ? 65534 : before;
  for (const auto& path : {folder.path(), folder.PathOf(folder.Names().at(0))})
    EXPECT_EQ(chown(path.c_str(), powerless, static_cast<gid_t>(-1)), 0);
  EXPECT_EQ(seteuid(powerless), 0);
  routine();
  EXPECT_EQ(seteuid(before), 0);
}

}  // namespace

TEST(Files, AFileIsReplacedWholeWhateverItsFolderIsCalled) {
  const Folder folder;
  const std::string odd = folder.PathOf("\xFF\xE9"), path = odd + "/j\xC3\xA9.tqf";
  const std::string bytes("a\0b\r\n\x1A\xFF", 7);
  ASSERT_EQ(mkdir(odd.c_str(), 0700), 0);
  platform::SetProgramFolder(odd);
  platform::ReplaceFile(platform::PathOf("j\xE9.tqf"), "something longer than what comes after it");
  ASSERT_EQ(chmod(path.c_str(), 0640), 0);
  platform::ReplaceFile(path, bytes);
  EXPECT_EQ(platform::ReadFile(path), bytes);
  struct stat entry {};
  stat(path.c_str(), &entry);
  EXPECT_EQ(entry.st_mode & 0777, 0640u);
  platform::DeleteFile(path);
  EXPECT_EQ(rmdir(odd.c_str()), 0) << "something else was left";
}

TEST(Files, AReadOnlyFileOrFolderLeavesTheOldFile) {
  const Folder folder;
  folder.Write("journal.tqt", "old");
  const std::string path = folder.PathOf("journal.tqt");
  RunPowerless(folder, [&] {
    for (const auto& [fileMode, folderMode] : {std::pair{0400u, 0700u}, {0600u, 0500u}}) {
      chmod(path.c_str(), fileMode);
      chmod(folder.path().c_str(), folderMode);
      EXPECT_EQ(platform::CanWriteTo(folder.path()), folderMode == 0700);
      ExpectFailure(FailureKind::PermissionDenied, path, [&] { platform::ReplaceFile(path, "new"); });
      EXPECT_EQ(platform::ReadFile(path), "old");
      EXPECT_EQ(folder.Names(), Texts{"journal.tqt"});
    }
    ExpectFailure(FailureKind::PermissionDenied, path, [&] { platform::DeleteFile(path); });
    chmod(folder.path().c_str(), 0700);
  });
}

TEST(Files, WhatIsNoFileIsToldByItsKind) {
  const Folder folder;
  const std::string here = folder.path(), missing = folder.PathOf("missing"), pipe = folder.PathOf("pipe");
  mkfifo(pipe.c_str(), 0600);
  ExpectFailure(FailureKind::FileNotFound, missing, [&] { platform::ReadFile(missing); });
  ExpectFailure(FailureKind::PathAccess, here, [&] { platform::ReadFile(here); });
  ExpectFailure(FailureKind::PathAccess, pipe, [&] { platform::ReadFile(pipe); });
  ExpectFailure(FailureKind::PathAccess, here, [&] { platform::ReplaceFile(here, "b"); });
  ExpectFailure(FailureKind::PathNotFound, missing, [&] { platform::ReplaceFile(missing + "/a", "b"); });
  EXPECT_NO_THROW(platform::DeleteFile(missing));
  EXPECT_FALSE(platform::FileExists(here));
}

TEST(Files, DamagedFilesAreKeptAndNeverWrittenOver) {
  const Folder folder;
  folder.Write("real", "first");
  const std::string path = folder.PathOf("journal.tqt");
  ASSERT_EQ(symlink(folder.PathOf("real").c_str(), path.c_str()), 0);
  EXPECT_EQ(platform::KeepDamaged(path), path + ".damaged");
  EXPECT_EQ(platform::KeepDamaged(path), path + ".damaged") << "one damage, one copy";
  platform::ReplaceFile(path, "second");
  EXPECT_EQ(platform::KeepDamaged(path), path + ".1.damaged");
  platform::ReplaceFile(path, "third");
  EXPECT_EQ(folder.Read("journal.tqt.damaged"), "first");
  EXPECT_EQ(folder.Read("journal.tqt.1.damaged"), "second");
  EXPECT_EQ(folder.Read("real"), "third") << "a file may be a link to another place";
}

TEST(Files, WhatAnotherProgramIsWritingIsLeftAlone) {
  const Folder folder;
  const std::string name = "journal.tqt", unfinished = name + std::string(platform::UnfinishedEnding);
  folder.Write(name, "old");
  folder.Write(unfinished, "half of the oth");
  const int other = open(folder.PathOf(unfinished).c_str(), O_RDONLY);
  flock(other, LOCK_EX);
  platform::RemoveUnfinished(folder.path());
  ExpectFailure(FailureKind::PathAccess, name, [&] { platform::ReplaceFile(folder.PathOf(name), "new"); });
  EXPECT_EQ(folder.Read(name) + folder.Read(unfinished), "oldhalf of the oth");
  close(other);  // as a kill does
  platform::ReplaceFile(folder.PathOf(name), "new");
  EXPECT_EQ(folder.Read(name), "new");
  EXPECT_EQ(folder.Names(), Texts{name});
}

TEST(Files, OnlyUnfinishedFilesAreRemoved) {
  const Folder folder;
  const std::string name(250, 'a'), ending(platform::UnfinishedEnding);
  for (const std::string& other : {"journal.tqt" + ending, ".trial" + ending, name, "b" + ending + ".txt"})
    folder.Write(other, "x");
  folder.Block("folder" + ending);
  platform::ReplaceFile(folder.PathOf(name), "a name with no room for the ending");
  platform::RemoveUnfinished(folder.path());
  EXPECT_EQ(folder.Names(), (Texts{name, "b" + ending + ".txt", "folder" + ending}));
}
