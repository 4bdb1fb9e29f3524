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

// The old file must be there as it was, and nothing beside it.
void ExpectNoReplacement(const Folder& folder, FailureKind kind, const std::string& bytes) {
  const std::string path = folder.PathOf("journal.tqt");
  ExpectFailure(kind, path, [&] { platform::ReplaceFile(path, bytes); });
  EXPECT_EQ(platform::ReadFile(path), "old");
  EXPECT_EQ(folder.Names(), Texts{"journal.tqt"});
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

TEST(Files, AFullDiskAndAReadOnlyFileOrFolderLeaveTheOldFile) {
  const Folder folder;
  folder.Write("journal.tqt", "old");
  const std::string path = folder.PathOf("journal.tqt");
  {
    const fixture::SmallDisk disk(1000);
    ExpectNoReplacement(folder, FailureKind::DiskFull, std::string(100000, 'x'));
  }
  RunPowerless(folder, [&] {
    for (const auto& [fileMode, folderMode] : {std::pair{0400u, 0700u}, {0600u, 0500u}}) {
      chmod(path.c_str(), fileMode);
      chmod(folder.path().c_str(), folderMode);
      EXPECT_EQ(platform::CanWriteTo(folder.path()), folderMode == 0700);
      ExpectNoReplacement(folder, FailureKind::PermissionDenied, "new");
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
  ExpectFailure(FailureKind::FileNotFound, missing, [&] { platform::KeepDamaged(missing); });
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

TEST(Files, OnlyLeftOversAreRemoved) {
  const Folder folder;
  Texts kept = {"journal.tqt",         "journal.tqt.BACKUP", "journal.tqt.Backup",  "journal.tqt.aB1deF",
                "journal.tqt.aBcdeFg", "journal.tqt.backup", "journal.tqt.damaged", "letter.txt.aBcdeF"};
  for (const auto& name : kept) folder.Write(name, "x");
  for (const char* name :
       {"journal.tqt.tllQDr", "j00001.tqf.LlYiOw", "tqpics.bin.ABcdef", "journal.ini.aBcdeF"})
    folder.Write(name, "x");
  folder.Block("j2.tqf.aBcdeF");
  platform::RemoveStaleTemporaries(folder.path());
  kept.insert(kept.begin(), "j2.tqf.aBcdeF");
  EXPECT_EQ(folder.Names(), kept);
}
