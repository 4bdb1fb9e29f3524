#include "platform/files/FolderLock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace platform {

FolderLock::FolderLock(const std::string& folder)
    : descriptor_(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {}

FolderLock::~FolderLock() {
  if (descriptor_ >= 0) close(descriptor_);
}

FolderLock::Reply FolderLock::Take() {
  if (flock(descriptor_, LOCK_EX | LOCK_NB) == 0) return Reply::Ours;
  return errno == EWOULDBLOCK ? Reply::Taken : Reply::NoLocks;
}

}  // namespace platform
