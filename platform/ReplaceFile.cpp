// Writing a file in one step: the bytes go into a nameless file, and when they are on the disk that file
// takes the old one's name.
#include <cerrno>
#include <fcntl.h>
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

}  // namespace

void ReplaceFile(const std::string& path, std::string_view bytes) {
  Must(path, [&] { return MayChange(path); });
  const ToolkitPath forToolkit(path);
  QSaveFile file(forToolkit.path());
  const auto size = static_cast<qint64>(bytes.size());
  Must(path, [&] { return file.open(QFile::WriteOnly | QFile::Unbuffered); });
  Must(path, [&] { return file.write(bytes.data(), size) == size; });
  Must(path, [&] { return Sync(file); });
  Must(path, [&] { return file.commit(); });
}

bool CanWriteTo(const std::string& folder) {
  std::string trial = folder + "/.trial-XXXXXX";
  const int descriptor = mkostemp(trial.data(), O_CLOEXEC);
  if (descriptor < 0) return false;
  close(descriptor);
  return unlink(trial.c_str()) == 0;
}

}  // namespace platform
