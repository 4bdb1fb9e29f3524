// Writing a file in one step: the bytes go into a file of their own beside it, and when they are on the disk
// that file takes the old one's name, and the name is brought to the disk too.
#include "platform/files/ReplaceFile.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>
#include <utility>

#include "platform/Errno.h"
#include "platform/files/Checksum.h"
#include "platform/files/KnownFiles.h"
#include "platform/files/LeftBehind.h"
#include "platform/files/Remembered.h"
#include "platform/files/SyncFolder.h"
#include "platform/files/Writing.h"

namespace platform {
namespace {

[[noreturn]] void Fail(int error, const std::string& path) {
  throw FailureOf(error, path, FailureKind::PathNotFound);
}

// A file that is kept from being changed is not to be replaced either, though the folder would allow it.
void RefuseUnchangeable(const std::string& path) {
  if (faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0 && errno != ENOENT) Fail(errno, path);
}

// The longest name that file systems take, in bytes.
constexpr std::size_t LongestName = 255;

std::string UnfinishedName(const std::string& target) {
  const std::size_t name = target.rfind('/') + 1;
  return target.substr(0, name + std::min(target.size() - name, LongestName - UnfinishedEnding.size())) +
         std::string(UnfinishedEnding);
}

// Where the file itself lies, or would lie: a link to another place stays a link.
std::string RealPath(const std::string& path) {
  std::error_code error;
  std::filesystem::path real(path);
  for (int links = 0; links < 40 && std::filesystem::is_symlink(real, error); ++links)
    real = real.parent_path() / std::filesystem::read_symlink(real, error);
  return real.string();
}

// None where there is no file.
std::optional<Identity> IdentityAt(const std::string& path) {
  struct stat entry {};
  return stat(path.c_str(), &entry) == 0 ? std::optional(IdentityOf(entry)) : std::nullopt;
}

std::atomic<int> filesBeingWritten = 0;

class BeingWritten {
 public:
  BeingWritten() { ++filesBeingWritten; }
  ~BeingWritten() { --filesBeingWritten; }
  BeingWritten(const BeingWritten&) = delete;
  BeingWritten& operator=(const BeingWritten&) = delete;
};

// The file that is written, under a name of its own until it is whole. It goes again unless it took the
// other's name.
class Unfinished {
 public:
  // `path` is named in failures; `target` is where the file itself lies.
  Unfinished(const std::string& path, const std::string& target);
  ~Unfinished();
  Unfinished(const Unfinished&) = delete;
  Unfinished& operator=(const Unfinished&) = delete;

  void Write(std::span<const std::string_view> pieces);
  void BringToTheDisk();
  void TakeTheName();
  // Of the one that has the name now, so that no other that takes its place is taken for it.
  struct stat entry() const;
  std::uint64_t checksum() const { return checksum_.value(); }

 private:
  void Must(bool succeeded) const {
    if (!succeeded) Fail(errno, path_);
  }
  void TakePermissionsOf(const std::string& target) const;
  bool HasTheName() const;

  const std::string& path_;
  const std::string& target_;
  std::string name_;
  int descriptor_;
  int lock_ = -1;  // reads, so that it can be held beyond the closing of the other
  Checksum checksum_;
};

Unfinished::Unfinished(const std::string& path, const std::string& target)
    : path_(path), target_(target), name_(UnfinishedName(target)) {
  RemoveLeftBehind(name_);
  descriptor_ = open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
  Must(descriptor_ >= 0);
  lock_ = open(name_.c_str(), O_RDONLY | O_CLOEXEC);
  Lock(lock_);  // who was quicker removes the file, which HasTheName tells
  TakePermissionsOf(target);
}

Unfinished::~Unfinished() {
  if (descriptor_ >= 0) close(descriptor_);
  if (!name_.empty() && HasTheName()) unlink(name_.c_str());
  if (lock_ >= 0) close(lock_);
}

// Not where another program took the file for a left one before it was locked.
bool Unfinished::HasTheName() const {
  struct stat own {};
  struct stat entry {};
  return lock_ < 0 || (fstat(lock_, &own) == 0 && lstat(name_.c_str(), &entry) == 0 &&
                       own.st_dev == entry.st_dev && own.st_ino == entry.st_ino);
}

// Until here nobody else could open it, and of a new file nobody else ever can. As far as the file system
// knows any permissions: a failure changes nothing of what is saved.
void Unfinished::TakePermissionsOf(const std::string& target) const {
  struct stat entry {};
  if (stat(target.c_str(), &entry) != 0) return;
  [[maybe_unused]] const int ignored = fchmod(descriptor_, entry.st_mode & 0777);
}

// How many pieces one call to the system takes.
constexpr std::size_t BatchSize = 1024;

using Batch = std::vector<iovec>;

Batch BatchOf(std::span<const std::string_view> pieces) {
  Batch batch;
  for (const std::string_view piece : pieces.first(std::min(BatchSize, pieces.size())))
    batch.push_back({const_cast<char*>(piece.data()), piece.size()});
  return batch;
}

// Moves the start of `left` on by so many bytes, and over pieces that are empty.
void Advance(std::span<iovec>& left, std::size_t done) {
  for (; !left.empty() && done >= left.front().iov_len; left = left.subspan(1)) done -= left.front().iov_len;
  if (left.empty()) return;
  left.front().iov_base = static_cast<char*>(left.front().iov_base) + done;
  left.front().iov_len -= done;
}

// The system may take fewer bytes than it was given.
void WriteBatch(int descriptor, std::span<iovec> left, const std::string& path) {
  for (Advance(left, 0); !left.empty();) {
    const ssize_t written = writev(descriptor, left.data(), static_cast<int>(left.size()));
    if (written == 0 || (written < 0 && errno != EINTR)) Fail(written == 0 ? EIO : errno, path);
    if (written > 0) Advance(left, static_cast<std::size_t>(written));
  }
}

void Unfinished::Write(std::span<const std::string_view> pieces) {
  while (!pieces.empty()) {
    Batch batch = BatchOf(pieces);
    for (const std::string_view piece : pieces.first(batch.size())) checksum_.Add(piece);
    pieces = pieces.subspan(batch.size());
    WriteBatch(descriptor_, batch, path_);
  }
}

// A write that the system accepted may still fail on its way to the disk. This must be known before the old
// file is given up; a disk behind a network tells when the file is closed.
void Unfinished::BringToTheDisk() {
  Must(fsync(descriptor_) == 0 || KnowsNoSync(errno));
  Must(close(std::exchange(descriptor_, -1)) == 0 || errno == EINTR);
}

void Unfinished::TakeTheName() {
  if (!HasTheName()) Fail(EBUSY, path_);
  Must(std::rename(name_.c_str(), target_.c_str()) == 0);
  name_.clear();
}

struct stat Unfinished::entry() const {
  struct stat entry {};
  if (lock_ < 0 || fstat(lock_, &entry) != 0) stat(target_.c_str(), &entry);
  return entry;
}

// Before the renaming `mayTakeTheName` is asked, with where the file lies, and behind it `named` is told.
template <class MayTakeTheName, class Named>
void Replace(const std::string& path, std::span<const std::string_view> pieces,
             MayTakeTheName&& mayTakeTheName, Named&& named) {
  const BeingWritten beingWritten;
  RefuseUnchangeable(path);
  const std::string target = RealPath(path);
  Unfinished file(path, target);
  file.Write(pieces);
  file.BringToTheDisk();
  if (!mayTakeTheName(target)) return;
  file.TakeTheName();
  named(file);
  SyncFolderOf(target);
}

}  // namespace

bool IsFileBeingWritten() {
  return filesBeingWritten > 0;
}

void ReplaceFile(const std::string& path, std::string_view bytes) {
  ReplaceFile(path, std::span(&bytes, 1));
}

void ReplaceFile(const std::string& path, std::span<const std::string_view> pieces) {
  Replace(
      path, pieces, [](const std::string&) { return true; }, [](const Unfinished&) {});
}

void ReplaceDataFile(const std::string& path, std::string_view bytes) {
  ReplaceDataFile(path, std::span(&bytes, 1));
}

// The disk may take long, and another program may change a data file meanwhile: then that is kept too.
void ReplaceDataFile(const std::string& path, std::span<const std::string_view> pieces) {
  const auto keepChanged = [&, expected = ExpectedAt(path)](const std::string& target) {
    if (IdentityAt(target) != expected) KeepChanged(path);
    return true;
  };
  const auto named = [&](const Unfinished& file) {
    Remember(path, file.entry(), file.checksum());
    MakeKeptPrivate(path);
  };
  Replace(path, pieces, keepChanged, named);
}

Expected ExpectedAt(const std::string& path) {
  const Expected known = KnownIdentity(path);
  return known ? known : IdentityAt(RealPath(path));
}

Replaced ReplaceAside(const std::string& path, std::span<const std::string_view> pieces,
                      const Expected& expected) noexcept {
  Replaced replaced;
  const auto isAsExpected = [&](const std::string& target) {
    const std::optional<Identity> there = IdentityAt(target);
    replaced.isChanged = there && there != expected;
    return !replaced.isChanged;
  };
  const auto named = [&](const Unfinished& file) {
    replaced.isDone = true;
    replaced.entry = file.entry();
    replaced.checksum = file.checksum();
  };
  try {
    Replace(path, pieces, isAsExpected, named);
  } catch (...) {
    replaced.failure = std::current_exception();
  }
  return replaced;
}

void TakeReplaced(const std::string& path, const Replaced& replaced) {
  if (replaced.isDone) {
    Remember(path, replaced.entry, replaced.checksum);
    MakeKeptPrivate(path);
  }
  if (replaced.failure) std::rethrow_exception(replaced.failure);
}

bool CanWriteTo(const std::string& folder) {
  const int nameless = open(folder.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, S_IRUSR | S_IWUSR);
  if (nameless >= 0) return close(nameless) == 0;
  if (errno != EOPNOTSUPP && errno != EISDIR) return false;
  const std::string trial = folder + "/trial" + std::string(UnfinishedEnding);
  const int descriptor = open(trial.c_str(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR);
  if (descriptor < 0) return false;
  close(descriptor);
  return unlink(trial.c_str()) == 0;
}

}  // namespace platform
