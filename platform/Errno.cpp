#include "platform/Errno.h"

#include <cerrno>

namespace platform {
namespace {

FailureKind KindOf(int error, FailureKind missing) {
  switch (error) {
    case ENOENT:
    case ENOTDIR:
      return missing;
    case EACCES:
    case EPERM:
    case EROFS:
      return FailureKind::PermissionDenied;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:  // the limit of a file system or of the user: no room either
      return FailureKind::DiskFull;
    case EIO:
      return FailureKind::DeviceError;
    case ENAMETOOLONG:
    case EILSEQ:
      return FailureKind::BadFileName;
    case ENOMEM:
      return FailureKind::OutOfMemory;
    default:
      return FailureKind::PathAccess;
  }
}

}  // namespace

Failure FailureOf(int error, const std::string& path, FailureKind missing) {
  return Failure(KindOf(error, missing), path);
}

}  // namespace platform
