// Writing a file in one step: the bytes go into a nameless file, and when they are on the disk that file
// takes the old one's name.
#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

#include <QtCore/QFile>
#include <QtCore/QSaveFile>

#include "platform/Errno.h"
#include "platform/Files.h"

namespace platform {
namespace {

// A path for the toolkit, which knows only paths that decode. A folder whose bytes do not is reached through
// its descriptor.
class ToolkitPath {
 public:
  explicit ToolkitPath(const std::string& path) : path_(QFile::decodeName(path.c_str())) {
    if (QFile::encodeName(path_) == path.c_str()) return;
    const std::size_t slash = path.rfind('/');
    folder_ = open(path.substr(0, slash + 1).c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    path_ = QStringLiteral("/proc/self/fd/%1/").arg(folder_) + QFile::decodeName(&path[slash + 1]);
  }
  ~ToolkitPath() {
    if (folder_ >= 0) close(folder_);
  }
  ToolkitPath(const ToolkitPath&) = delete;
  ToolkitPath& operator=(const ToolkitPath&) = delete;
  const QString& path() const { return path_; }

 private:
  QString path_;
  int folder_ = -1;
};

[[noreturn]] void Fail(int error, const std::string& path) {
  throw FailureOf(error, path, FailureKind::PathNotFound);
}

// The toolkit tells of its failures in words; the error number that the system left behind is plainer.
template <class Step>
void Must(const std::string& path, Step&& step) {
  errno = 0;
  if (!step()) Fail(errno, path);
}

// A write that the system accepted may still fail on its way to the disk. This must be known before the old
// file is given up, and the toolkit does not look.
bool Sync(const QSaveFile& file) {
  return fsync(file.handle()) == 0 || errno == EINVAL || errno == ENOTSUP;
}

// A file that is kept from being changed is not to be replaced either, though the folder would allow it.
bool MayChange(const std::string& path) {
  return faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0 || errno == ENOENT;
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

void WriteAll(int descriptor, std::span<const std::string_view> pieces, const std::string& path) {
  while (!pieces.empty()) {
    Batch batch = BatchOf(pieces);
    pieces = pieces.subspan(batch.size());
    WriteBatch(descriptor, batch, path);
  }
}

}  // namespace

void ReplaceFile(const std::string& path, std::string_view bytes) {
  ReplaceFile(path, std::span(&bytes, 1));
}

void ReplaceFile(const std::string& path, std::span<const std::string_view> pieces) {
  Must(path, [&] { return MayChange(path); });
  const ToolkitPath forToolkit(path);
  QSaveFile file(forToolkit.path());
  Must(path, [&] { return file.open(QFile::WriteOnly | QFile::Unbuffered); });
  WriteAll(file.handle(), pieces, path);
  Must(path, [&] { return Sync(file); });
  Must(path, [&] { return file.commit(); });
}

bool CanWriteTo(const std::string& folder) {
  const int nameless = open(folder.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, S_IRUSR | S_IWUSR);
  if (nameless >= 0) return close(nameless) == 0;
  if (errno != EOPNOTSUPP && errno != EISDIR) return false;
  std::string trial = folder + "/.trial-XXXXXX";
  const int descriptor = mkostemp(trial.data(), O_CLOEXEC);
  if (descriptor < 0) return false;
  close(descriptor);
  return unlink(trial.c_str()) == 0;
}

}  // namespace platform
