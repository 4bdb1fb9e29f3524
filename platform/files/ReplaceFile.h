// How a data file is written: in one step, so that a kill or a full disk leaves what was there before. Every
// failure is a platform::Failure that names the path.
#pragma once

#include <cstdint>
#include <exception>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <sys/stat.h>

#include "platform/files/Identity.h"

namespace platform {

// The one way a data file is written: the file holds `bytes` afterwards, or, on failure, what it held before.
// The new bytes are on the disk before they take the name in one step, and the name is on the disk at the
// end. A new file is for its owner alone, whatever the umask; one that is replaced keeps its permissions.
// Throws DiskFull, PermissionDenied, PathNotFound, DeviceError or PathAccess; and NotYetOnDisk
// (platform/files/SyncFolder.h) when the file holds `bytes`, but may lose them in a power cut: it is to be
// written once more. A process that is killed meanwhile can leave one file beside it that is called as
// UnfinishedEnding tells.
void ReplaceFile(const std::string& path, std::string_view bytes);
// The same with the bytes in pieces, one behind the other, so that they need not be brought together first.
void ReplaceFile(const std::string& path, std::span<const std::string_view> pieces);
// The same, and makes the file known (platform/files/KnownFiles.h), after NotYetOnDisk too. What another
// program puts there while the bytes are on their way to the disk is kept as KeepChanged does. In the
// window's thread.
void ReplaceDataFile(const std::string& path, std::string_view bytes);
void ReplaceDataFile(const std::string& path, std::span<const std::string_view> pieces);

// ReplaceDataFile for a thread of its own, which knows nothing of the files that are known: in three steps,
// of which only the second, the long one, is that thread's. What it is given of the file as it is known, and
// what it gives back:
using Expected = std::optional<Identity>;
struct Replaced {
  bool isDone = false;     // the file holds the new bytes: so `entry` and `checksum` are those of it
  bool isChanged = false;  // another program has put a file there meanwhile, and nothing was done
  struct stat entry {};
  std::uint64_t checksum = 0;
  std::exception_ptr failure;  // what ReplaceDataFile would have thrown
};
Expected ExpectedAt(const std::string& path);
Replaced ReplaceAside(const std::string& path, std::span<const std::string_view> pieces,
                      const Expected& expected) noexcept;
// Makes the file known that ReplaceAside has put there. Throws what it failed with. A file of another program
// is as it was: KeepChanged is to be asked anew, and the file written once more.
void TakeReplaced(const std::string& path, const Replaced& replaced);

// What the name of a file that is being written has behind the name that it will take.
inline constexpr std::string_view UnfinishedEnding = ".thornquill-unfinished";

// Whether a file can be created in the folder: tried, and the trial removed.
bool CanWriteTo(const std::string& folder);

}  // namespace platform
