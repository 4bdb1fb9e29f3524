#include "platform/files/Identity.h"

namespace platform {

Identity IdentityOf(const struct stat& entry) {
  return {static_cast<std::int64_t>(entry.st_dev),
          static_cast<std::int64_t>(entry.st_ino),
          entry.st_size,
          entry.st_mtim.tv_sec,
          entry.st_mtim.tv_nsec,
          entry.st_ctim.tv_sec,
          entry.st_ctim.tv_nsec};
}

}  // namespace platform
