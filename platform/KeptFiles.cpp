// Files that lie beside the data files: damaged ones that are kept, and those that a killed process left.
#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/Errno.h"
#include "platform/FileNames.h"
#include "platform/Files.h"

namespace platform {
namespace {

void WriteAll(int descriptor, std::string_view bytes, const std::string& path) {
  while (!bytes.empty()) {
    const ssize_t written = write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno != EINTR) throw FailureOf(errno, path, FailureKind::PathNotFound);
    if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

void CopyInto(int descriptor, const std::string& from, const std::string& to) {
  InputFile file(from);
  std::string piece(std::size_t{1} << 16, '\0');
  while (const std::size_t got = file.Read(piece.data(), piece.size()))
    WriteAll(descriptor, std::string_view(piece).substr(0, got), to);
  if (fsync(descriptor) != 0 && errno != EINVAL && errno != ENOTSUP)
    throw FailureOf(errno, to, FailureKind::PathNotFound);
}

// False when the name is taken.
bool Copy(const std::string& from, const std::string& to) {
  const int descriptor = open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
  if (descriptor < 0 && errno == EEXIST) return false;
  if (descriptor < 0) throw FailureOf(errno, to, FailureKind::PathNotFound);
  try {
    CopyInto(descriptor, from, to);
  } catch (...) {
    close(descriptor);
    unlink(to.c_str());
    throw;
  }
  close(descriptor);
  return true;
}

// A second name needs no room on a full disk. The file itself is never changed afterwards, since writing
// replaces it, so the kept name keeps the damaged bytes. False when the name is taken.
bool Keep(const std::string& path, const std::string& kept) {
  if (linkat(AT_FDCWD, path.c_str(), AT_FDCWD, kept.c_str(), AT_SYMLINK_FOLLOW) == 0) return true;
  if (errno == EEXIST) return false;
  return Copy(path, kept);
}

bool SameFile(const std::string& one, const std::string& other) {
  struct stat first {};
  struct stat second {};
  return stat(one.c_str(), &first) == 0 && stat(other.c_str(), &second) == 0 &&
         first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

bool IsSmall(char letter) {
  return letter >= 'a' && letter <= 'z';
}
bool IsCapital(char letter) {
  return letter >= 'A' && letter <= 'Z';
}

// Six letters drawn at random out of both alphabets. Those written as a person writes a word ("backup",
// "Backup", "BACKUP") may be a person's own copy: better one forgotten file in twenty than a lost one.
bool IsRandomEnding(std::string_view ending) {
  if (ending.size() != 6) return false;
  const auto capitals = std::count_if(ending.begin(), ending.end(), IsCapital);
  const auto small = std::count_if(ending.begin(), ending.end(), IsSmall);
  if (capitals + small != 6 || capitals == 0 || small == 0) return false;
  return capitals > 1 || !IsCapital(ending.front());
}

bool IsDataFileName(std::string_view name) {
  return name == "journal.tqt" || name == "journal.ini" || name == "tqpics.bin" || IsJournalFileName(name);
}

bool IsOrdinaryFile(const std::string& path) {
  struct stat entry {};
  return lstat(path.c_str(), &entry) == 0 && S_ISREG(entry.st_mode);
}

}  // namespace

std::string KeepDamaged(const std::string& path) {
  if (!FileExists(path)) throw Failure(FailureKind::FileNotFound, path);
  std::string kept = path + ".damaged";
  for (int number = 1; !Keep(path, kept); ++number) {
    if (SameFile(path, kept)) break;  // kept already, at a save that failed
    kept = path + "." + std::to_string(number) + ".damaged";
  }
  return kept;
}

bool IsStaleTemporary(std::string_view fileName) {
  const std::size_t dot = fileName.rfind('.');
  return dot != std::string_view::npos && IsRandomEnding(fileName.substr(dot + 1)) &&
         IsDataFileName(fileName.substr(0, dot));
}

void RemoveStaleTemporaries(const std::string& folder) {
  for (const std::string& name : NamesIn(folder)) {
    const std::string path = folder + "/" + name;
    if (IsStaleTemporary(name) && IsOrdinaryFile(path)) unlink(path.c_str());
  }
}

}  // namespace platform
