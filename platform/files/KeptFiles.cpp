#include "platform/files/KeptFiles.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <map>
#include <set>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/Errno.h"
#include "platform/Failure.h"
#include "platform/files/FileNames.h"
#include "platform/files/Files.h"
#include "platform/files/InputFile.h"
#include "platform/files/LeftBehind.h"
#include "platform/files/ReplaceFile.h"
#include "platform/files/SyncFolder.h"

namespace platform {
namespace {

bool IsTaken(const std::string& name) {
  struct stat entry {};
  return lstat(name.c_str(), &entry) == 0;
}

// A second name needs no room on a full disk. The file itself is never changed afterwards, since writing
// replaces it, so the kept name keeps the bytes. Some disks know no second names, and get a copy.
// False when the name is taken.
bool Keep(const std::string& path, const std::string& kept) {
  if (linkat(AT_FDCWD, path.c_str(), AT_FDCWD, kept.c_str(), AT_SYMLINK_FOLLOW) == 0) return true;
  if (errno == EEXIST || IsTaken(kept)) return false;
  ReplaceFile(kept, ReadFile(path));
  return true;
}

bool SameFile(const std::string& one, const std::string& other) {
  struct stat first {};
  struct stat second {};
  return stat(one.c_str(), &first) == 0 && stat(other.c_str(), &second) == 0 &&
         first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

bool IsOrdinaryFile(const std::string& path) {
  struct stat entry {};
  return lstat(path.c_str(), &entry) == 0 && S_ISREG(entry.st_mode);
}

// A copy that cannot be read is none of this file.
bool HoldsTheSame(const std::string& path, const std::string& kept) try {
  return IsOrdinaryFile(kept) && ReadFile(path) == ReadFile(kept);
} catch (const Failure&) {
  return false;
}

// Kept already, at a save that failed: under a second name, or in a copy.
bool WasKept(const std::string& path, const std::string& kept) {
  return SameFile(path, kept) || HoldsTheSame(path, kept);
}

bool IsOrWasKept(const std::string& path, const std::string& kept) {
  return Keep(path, kept) || WasKept(path, kept);
}

std::string KeptName(const std::string& path, const std::string& ending, int number) {
  std::string name = path;
  if (number > 0) name.append(1, '.').append(std::to_string(number));
  return name + ending;
}

// What was kept of a file that still has its path.
std::map<std::string, std::set<std::string>>& KeptOf() {
  static std::map<std::string, std::set<std::string>> names;
  return names;
}

// Not where the file has a name that somebody else gave it.
void MakePrivate(const std::string& kept) {
  struct stat entry {};
  if (lstat(kept.c_str(), &entry) != 0 || !S_ISREG(entry.st_mode) || entry.st_nlink != 1) return;
  if ((entry.st_mode & 0777) == (S_IRUSR | S_IWUSR)) return;
  [[maybe_unused]] const int ignored = chmod(kept.c_str(), S_IRUSR | S_IWUSR);
}

}  // namespace

std::string KeepBeside(const std::string& path, const std::string& ending, int number) try {
  std::string name = KeptName(path, ending, number);
  while (!IsOrWasKept(path, name)) name = KeptName(path, ending, ++number);
  KeptOf()[path].insert(name);
  SyncFolderOf(name);  // the one name is on the disk before the other is given away
  return name;
} catch (const NotYetOnDisk& failure) {
  throw Failure(failure);  // of the copy: the file itself is as it was
}

void MakeKeptPrivate(const std::string& path) {
  for (const std::string& name : KeptOf()[path]) MakePrivate(name);
  KeptOf().erase(path);
}

std::string MoveAside(const std::string& path) {
  int number = 0;
  std::string name = KeptName(path, ".damaged", number);
  while (IsTaken(name)) name = KeptName(path, ".damaged", ++number);
  if (std::rename(path.c_str(), name.c_str()) != 0) throw FailureOf(errno, path, FailureKind::PathNotFound);
  MakePrivate(name);
  return name;
}

std::string KeepDamaged(const std::string& path) {
  if (!FileExists(path)) throw Failure(FailureKind::FileNotFound, path);
  return KeepBeside(path, ".damaged", 0);
}

std::string DamagedCopyOf(const std::string& path) {
  int number = 0;
  std::string name = KeptName(path, ".damaged", number);
  while (IsTaken(name) && !WasKept(path, name)) name = KeptName(path, ".damaged", ++number);
  return name;
}

bool Lock(int descriptor) {
  return flock(descriptor, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

void RemoveLeftBehind(const std::string& path) {
  const int descriptor = open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
  if (descriptor < 0 || Lock(descriptor)) unlink(path.c_str());
  if (descriptor >= 0) close(descriptor);
}

void RemoveUnfinished(const std::string& folder) {
  for (const std::string& name : NamesIn(folder)) {
    const std::string path = folder + "/" + name;
    if (name.ends_with(UnfinishedEnding) && IsOrdinaryFile(path)) RemoveLeftBehind(path);
  }
}

}  // namespace platform
