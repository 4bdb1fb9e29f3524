#include <csignal>
#include <functional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/Failure.h"
#include "tests/support/Fixtures.h"

using fixture::Folder;
using platform::Failure;
using platform::FailureKind;
using Names = std::vector<std::string>;

namespace {

constexpr uid_t nobody = 65534;

// Somebody whom the permissions of files bind, for as long as it lives; root is bound by none.
class Powerless {
 public:
  explicit Powerless(const Folder& folder) {
    if (before_ != 0) return;
    EXPECT_EQ(chown(folder.path().c_str(), nobody, nobody), 0);
    for (const std::string& name : folder.Names())
      EXPECT_EQ(chown(folder.PathOf(name).c_str(), nobody, nobody), 0);
    EXPECT_EQ(seteuid(nobody), 0);
  }
  ~Powerless() { EXPECT_EQ(seteuid(before_), 0); }

 private:
  uid_t before_ = geteuid();
};

// No file can grow beyond some bytes, which the system tells as it tells of a full disk: by a failed write.
class SmallDisk {
 public:
  explicit SmallDisk(rlim_t bytes) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit small{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
  }
  ~SmallDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, signalBefore_);
  }

 private:
  rlimit before_{};
  void (*signalBefore_)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

// The failure must be of this kind and name the path.
void ExpectFailure(FailureKind kind, const std::string& path, const std::function<void()>& routine) {
  try {
    routine();
    ADD_FAILURE() << "no failure for " << path;
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.kind(), kind) << failure.what();
    EXPECT_NE(std::string(failure.what()).find(path), std::string::npos) << failure.what();
  }
}

void ExpectReplaceFails(const Folder& folder, FailureKind kind, std::string_view bytes) {
  ExpectFailure(kind, folder.PathOf("journal.tqt"),
                [&] { platform::ReplaceFile(folder.PathOf("journal.tqt"), bytes); });
}

}  // namespace

TEST(Files, AFileIsReplacedWhole) {
  const Folder folder;
  const std::string path = platform::PathOf("j\xE9.tqf");
  const std::string bytes("a\0b\r\n\x1A\xFF", 7);
  platform::ReplaceFile(path, "something longer than what comes after it");
  ASSERT_EQ(chmod(path.c_str(), 0640), 0);
  platform::ReplaceFile(path, bytes);
  EXPECT_EQ(platform::ReadFile(path), bytes);
  EXPECT_EQ(folder.Names(), Names{"j\xC3\xA9.tqf"});
  struct stat entry {};
  stat(path.c_str(), &entry);
  EXPECT_EQ(entry.st_mode & 0777, 0640u);
}

TEST(Files, AFolderWhoseNameDoesNotDecodeIsWrittenTo) {
  const Folder folder;
  const std::string odd = folder.PathOf("\xFF\xE9");
  ASSERT_EQ(mkdir(odd.c_str(), 0700), 0);
  platform::SetProgramFolder(odd);
  platform::ReplaceFile(platform::PathOf("journal.tqt"), "old");
  platform::ReplaceFile(platform::PathOf("journal.tqt"), "new");
  EXPECT_EQ(platform::ReadFile(odd + "/journal.tqt"), "new");
  platform::DeleteFile(platform::PathOf("journal.tqt"));
  EXPECT_EQ(rmdir(odd.c_str()), 0) << "something else was left";
}

TEST(Files, AFullDiskLeavesTheOldFile) {
  const Folder folder;
  folder.Write("journal.tqt", "old");
  {
    const SmallDisk disk(1000);
    ExpectReplaceFails(folder, FailureKind::DiskFull, std::string(100000, 'x'));
  }
  EXPECT_EQ(folder.Read("journal.tqt"), "old");
  EXPECT_EQ(folder.Names(), Names{"journal.tqt"});
}

TEST(Files, AReadOnlyFileOrFolderIsToldAndKept) {
  const Folder folder;
  folder.Write("journal.tqt", "old");
  const Powerless person(folder);
  chmod(folder.PathOf("journal.tqt").c_str(), 0400);
  ExpectReplaceFails(folder, FailureKind::PermissionDenied, "new");
  chmod(folder.PathOf("journal.tqt").c_str(), 0600);
  EXPECT_TRUE(platform::CanWriteTo(folder.path()));
  chmod(folder.path().c_str(), 0500);
  EXPECT_FALSE(platform::CanWriteTo(folder.path()));
  ExpectReplaceFails(folder, FailureKind::PermissionDenied, "new");
  ExpectFailure(FailureKind::PermissionDenied, folder.PathOf("journal.tqt"),
                [&] { platform::DeleteFile(folder.PathOf("journal.tqt")); });
  chmod(folder.path().c_str(), 0700);
  EXPECT_EQ(folder.Read("journal.tqt"), "old");
  EXPECT_EQ(folder.Names(), Names{"journal.tqt"});
}

TEST(Files, WhatIsNoFileIsToldByItsKind) {
  const Folder folder;
  const std::string missing = folder.PathOf("missing");
  const std::string pipe = folder.PathOf("pipe");
  mkfifo(pipe.c_str(), 0600);
  ExpectFailure(FailureKind::FileNotFound, missing, [&] { platform::ReadFile(missing); });
  ExpectFailure(FailureKind::PathAccess, folder.path(), [&] { platform::ReadFile(folder.path()); });
  ExpectFailure(FailureKind::PathAccess, pipe, [&] { platform::ReadFile(pipe); });
  ExpectFailure(FailureKind::PathNotFound, missing, [&] { platform::ReplaceFile(missing + "/a", "b"); });
  ExpectFailure(FailureKind::PathAccess, folder.path(), [&] { platform::ReplaceFile(folder.path(), "b"); });
  EXPECT_NO_THROW(platform::DeleteFile(missing));
  EXPECT_FALSE(platform::FileExists(folder.path()));
}

TEST(Files, AFileIsReadInPieces) {
  const Folder folder;
  folder.Write("a", "0123456789");
  platform::InputFile file(folder.PathOf("a"));
  EXPECT_EQ(file.size(), 10u);
  char piece[8];
  EXPECT_EQ(file.Read(piece, 8), 8u);
  EXPECT_EQ(file.Read(piece, 8), 2u);
  EXPECT_EQ(std::string_view(piece, 2), "89");
  EXPECT_EQ(file.Read(piece, 8), 0u);
}

TEST(Files, DamagedFilesAreKeptAndNeverWrittenOver) {
  const Folder folder;
  folder.Write("real", "first");
  ASSERT_EQ(symlink(folder.PathOf("real").c_str(), folder.PathOf("journal.tqt").c_str()), 0);
  const std::string path = folder.PathOf("journal.tqt");
  EXPECT_EQ(platform::KeepDamaged(path), path + ".damaged");
  EXPECT_EQ(platform::KeepDamaged(path), path + ".damaged") << "one damage, one copy";
  platform::ReplaceFile(path, "second");
  EXPECT_EQ(platform::KeepDamaged(path), path + ".1.damaged");
  platform::ReplaceFile(path, "third");
  EXPECT_EQ(folder.Read("journal.tqt.damaged"), "first");
  EXPECT_EQ(folder.Read("journal.tqt.1.damaged"), "second");
  EXPECT_EQ(folder.Read("real"), "third") << "a file may be a link to another place";
  ExpectFailure(FailureKind::FileNotFound, path + "x", [&] { platform::KeepDamaged(path + "x"); });
}

TEST(Files, OnlyLeftOversAreRemoved) {
  const Folder folder;
  const Names kept = {"journal.tqt",         "journal.tqt.BACKUP",  "journal.tqt.Backup",
                      "journal.tqt.aB1deF",  "journal.tqt.aBcdeFg", "journal.tqt.backup",
                      "journal.tqt.damaged", "letter.txt.aBcdeF"};
  for (const std::string& name : kept) folder.Write(name, "x");
  for (const char* name :
       {"journal.tqt.tllQDr", "j00001.tqf.LlYiOw", "tqpics.bin.ABcdef", "journal.ini.aBcdeF"})
    folder.Write(name, "x");
  ASSERT_EQ(mkdir(folder.PathOf("j2.tqf.aBcdeF").c_str(), 0700), 0);
  platform::RemoveStaleTemporaries(folder.path());
  Names expected = kept;
  expected.insert(expected.begin(), "j2.tqf.aBcdeF");
  EXPECT_EQ(folder.Names(), expected);
}

TEST(Files, JournalFilesAreListedInTheOrderOfTheirBytes) {
  const Folder folder;
  for (const char* name : {"j00010.tqf", "j00002.tqf", "J3.TQF", "a.tqf.bak", ".hidden.tqf", "\xC3\xA9.tqf",
                           "\xD0\x96.tqf", "\xFF.tqf", "zz.tqf"})
    folder.Write(name, "x");
  mkdir(folder.PathOf("folder.tqf").c_str(), 0700);
  EXPECT_EQ(platform::ListJournalFiles(folder.path()),
            (Names{"J3.TQF", "j00002.tqf", "j00010.tqf", "zz.tqf", "\xE9.tqf"}));
  EXPECT_TRUE(platform::ListJournalFiles(folder.PathOf("missing")).empty());
}
