#include "platform/files/SyncFolder.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

#include "platform/Errno.h"

namespace platform {
namespace {

std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return path.substr(0, slash + 1);
}

bool CannotBeSynced(int error) {
  return KnowsNoSync(error) || error == EBADF || error == EACCES;
}

}  // namespace

NotYetOnDisk::NotYetOnDisk(int error, const std::string& path)
    : Failure(FailureOf(error, path, FailureKind::PathNotFound)) {}

bool KnowsNoSync(int error) {
  return error == EINVAL || error == ENOTSUP || error == ENOSYS || error == EPERM;
}

const char* FileAfter(const std::exception& failure) {
  if (!dynamic_cast<const NotYetOnDisk*>(&failure)) return "the file is as it was";
  return "the file is the new one, though a power cut could still bring back the one before";
}

void SyncFolderOf(const std::string& path) {
  const int folder = open(FolderOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  const bool isSynced = folder >= 0 && fsync(folder) == 0;
  const int error = errno;
  if (folder >= 0) close(folder);
  if (!isSynced && !CannotBeSynced(error)) throw NotYetOnDisk(error, path);
}

}  // namespace platform
