#include <fcntl.h>
#include <set>
#include <sys/file.h>
#include <sys/syscall.h>

#include "platform/dialogs/TellKept.h"
#include "platform/files/Checksum.h"
#include "platform/files/InputFile.h"
#include "platform/files/KeptFiles.h"
#include "platform/files/KnownFiles.h"
#include "platform/files/OutputFile.h"
#include "platform/files/ReplaceFile.h"
#include "platform/files/SyncFolder.h"
#include "tests/support/Fixtures.h"

using fixture::ExpectFailure;
using fixture::Folder;
using fixture::RunPowerless;
using fixture::Texts;
using platform::FailureKind;

namespace {

// What the calls below saw, each of which stands in for the C library's function of its name.
struct {
  Texts synced;         // the names of the folders that were synced
  int folderError = 0;  // what they answer
  std::function<void()> duringFileSync = {};
  mode_t modeBefore = 0;  // of a file whose mode is set: the one that it was made with
} calls;

struct stat EntryOf(const std::string& path) {
  struct stat entry {};
  EXPECT_EQ(lstat(path.c_str(), &entry), 0) << path;
  return entry;
}

}  // namespace

extern "C" int fsync(int descriptor) {
  struct stat entry {};
  if (fstat(descriptor, &entry) == 0 && S_ISDIR(entry.st_mode)) {
    const auto link = "/proc/self/fd/" + std::to_string(descriptor);
    calls.synced.push_back(QFile::symLinkTarget(QString::fromStdString(link)).toStdString());
    if ((errno = calls.folderError) != 0) return -1;
  } else if (calls.duringFileSync) {
    std::exchange(calls.duringFileSync, nullptr)();
  }
  return static_cast<int>(syscall(SYS_fsync, descriptor));
}

extern "C" int fchmod(int descriptor, mode_t mode) noexcept {
  struct stat entry {};
  fstat(descriptor, &entry);
  calls.modeBefore = entry.st_mode & 0777;
  return static_cast<int>(syscall(SYS_fchmod, descriptor, mode));
}

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
  EXPECT_EQ(EntryOf(path).st_mode & 0777, 0640u);
  platform::DeleteFile(path);
  EXPECT_EQ(rmdir(odd.c_str()), 0) << "something else was left";
}

TEST(Files, ATakenNameIsBroughtToTheDiskWhereTheFileLies) {
  const Folder folder;
  const std::string there = folder.PathOf("there"), path = folder.PathOf("journal.tqt");
  ASSERT_EQ(mkdir(there.c_str(), 0700), 0);
  ASSERT_EQ(symlink("there/real", path.c_str()), 0);
  calls = {};
  platform::ReplaceFile(path, "old");
  EXPECT_EQ(calls.synced, Texts{there});
  platform::KeepDamaged(path);
  EXPECT_EQ(calls.synced, (Texts{there, folder.path()})) << "a second name lies beside the link";
  for (const int error : {EINVAL, ENOTSUP, EBADF, ENOSYS, EPERM}) {
    calls.folderError = error;
    EXPECT_NO_THROW(platform::ReplaceFile(path, "old")) << "a file system that knows no such thing";
  }
  calls.folderError = EIO;
  try {
    platform::ReplaceFile(path, "new");
    ADD_FAILURE() << "nothing is told";
  } catch (const platform::NotYetOnDisk& failure) {
    EXPECT_EQ(failure.kind(), FailureKind::DeviceError);
    EXPECT_NE(std::string(platform::FileAfter(failure)).find("is the new one"), std::string::npos);
  }
  EXPECT_EQ(folder.Read("journal.tqt"), "new");
  calls.folderError = 0;
  EXPECT_NO_THROW(platform::ReplaceFile(path, "newer")) << "and it can be written again";
}

TEST(Files, NobodyElseCanReadAFileThatIsBeingWrittenOrThatIsNew) {
  const Folder folder;
  const std::string path = folder.PathOf("j00000.tqf");
  const mode_t before = umask(0);
  platform::ReplaceFile(path, "new");
  EXPECT_EQ(EntryOf(path).st_mode & 0777, 0600u);
  EXPECT_EQ(EntryOf(platform::KeepDamaged(path)).st_mode & 0777, 0600u);
  chmod(path.c_str(), 0664);
  platform::ReplaceFile(path, "newer");
  EXPECT_EQ(calls.modeBefore, 0600u);
  EXPECT_EQ(EntryOf(path).st_mode & 0777, 0664u) << "what is there keeps its mode";
  const std::string kept = platform::KeepDamaged(path);
  EXPECT_EQ(EntryOf(path).st_mode & 0777, 0664u);
  platform::ReplaceDataFile(path, "newest");
  EXPECT_EQ(EntryOf(kept).st_mode & 0777, 0600u);
  EXPECT_EQ(EntryOf(path).st_mode & 0777, 0664u);
  EXPECT_EQ(EntryOf(platform::MoveAside(path)).st_mode & 0777, 0600u);
  EXPECT_EQ(folder.Names(), (Texts{"j00000.tqf.1.damaged", "j00000.tqf.2.damaged", "j00000.tqf.damaged"}));
  platform::AppendToFile(folder.PathOf("page.html"), "an export");
  EXPECT_EQ(EntryOf(folder.PathOf("page.html")).st_mode & 0777, 0666u) << "is for whom the user likes";
  umask(before);
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

TEST(Files, WhatAnotherProgramPutThereIsKeptAndToldOnce) {
  const Folder folder;
  fixture::Answers answers;
  const std::string name = "journal.tqt", path = folder.PathOf(name);
  const auto save = [&](const std::string& bytes) {
    const bool isChanged = platform::KeepChanged(path);
    platform::ReplaceDataFile(path, bytes);
    platform::TellKept(path);
    return isChanged;
  };
  EXPECT_FALSE(save("first")) << "a missing file";
  EXPECT_FALSE(save("our own"));
  folder.Write("copy", "our own");
  utimensat(AT_FDCWD, path.c_str(), nullptr, 0);
  EXPECT_FALSE(platform::KeepChanged(path)) << "its time alone";
  rename(folder.PathOf("copy").c_str(), path.c_str());
  EXPECT_FALSE(platform::KeepChanged(path)) << "the same bytes in another file";
  folder.Write(name, "another's");
  EXPECT_TRUE(platform::KeepChanged(path));
  EXPECT_FALSE(platform::KeepChanged(path)) << "kept already, for a save that failed";
  EXPECT_FALSE(save("ours again"));
  folder.Write(name, "OURS again");
  EXPECT_EQ(platform::ReadDataFile(path), "OURS again");
  EXPECT_FALSE(save("ours")) << "what was read is known";
  platform::DeleteFile(path);
  EXPECT_FALSE(save("ours")) << "what is gone is written";
  folder.Write(name, "one more");
  EXPECT_TRUE(save("ours at last"));
  EXPECT_EQ(folder.Read(name + ".1.other"), "another's");
  EXPECT_EQ(folder.Read(name + ".2.other"), "one more");
  folder.Write(name, "before the look");
  EXPECT_TRUE(platform::KeepChanged(path));
  folder.Write("copy", "behind the look");
  rename(folder.PathOf("copy").c_str(), path.c_str());
  platform::ReplaceDataFile(path, "ours again");
  platform::TellKept(path);
  EXPECT_EQ(folder.Read(name + ".4.other"), "behind the look");
  EXPECT_EQ(answers.messages.size(), 4u) << "both copies of one save";
  calls.duringFileSync = [&] { folder.Write(name, "between the look and the name"); };
  EXPECT_FALSE(save("ours again"));
  EXPECT_EQ(folder.Read(name + ".5.other"), "between the look and the name");
  ASSERT_EQ(answers.messages.size(), 5u);
  EXPECT_NE(answers.last().find(name + ".5.other"), std::string::npos);
}

TEST(Files, AnotherProgramsFileThatCannotBeKeptIsNotWrittenOver) {
  const Folder folder;
  const std::string path = folder.PathOf("journal.tqt");
  folder.Write("journal.tqt", "another's, that was never read");
  RunPowerless(folder, [&] {
    chmod(path.c_str(), 0200);
    ExpectFailure(FailureKind::PermissionDenied, path, [&] { platform::KeepChanged(path); });
    chmod(path.c_str(), 0600);
    chmod(folder.path().c_str(), 0500);
    ExpectFailure(FailureKind::PermissionDenied, path, [&] { platform::KeepChanged(path); });
    chmod(folder.path().c_str(), 0700);
    EXPECT_EQ(folder.Names(), Texts{"journal.tqt"});
    calls = {.synced = {}, .folderError = EIO};
    try {
      platform::KeepChanged(path);
      ADD_FAILURE() << "nothing is told";
    } catch (const platform::Failure& failure) {
      EXPECT_EQ(std::string(platform::FileAfter(failure)), "the file is as it was");
    }
    calls.folderError = 0;
    EXPECT_TRUE(platform::KeepChanged(path)) << "and it is tried again";
  });
  EXPECT_EQ(folder.Names(), (Texts{"journal.tqt", "journal.tqt.1.other"})) << "one copy";
}

TEST(Files, AChecksumTellsEachByteAndNoPieces) {
  std::string bytes(200, '\0');
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i * 7);
  const auto checksumOf = [](std::string_view text, std::size_t piece) {
    platform::Checksum checksum;
    for (; text.size() > piece; text.remove_prefix(piece)) checksum.Add(text.substr(0, piece));
    checksum.Add(text);
    return checksum.value();
  };
  std::set<std::uint64_t> values;
  for (std::size_t size = 0; size <= bytes.size(); ++size) {
    values.insert(checksumOf(bytes.substr(0, size), 1000));
    for (const std::size_t piece : {1u, 31u, 32u, 33u})
      values.insert(checksumOf(bytes.substr(0, size), piece));
  }
  for (char& byte : bytes) {
    byte ^= 1;
    values.insert(checksumOf(bytes, 1000));
    byte ^= 1;
  }
  values.insert(checksumOf(std::string(64, '\0'), 64));
  values.insert(checksumOf(std::string(65, '\0'), 65));
  EXPECT_EQ(values.size(), 201u + 200u + 2u);
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
