// Files that are read. Paths are the system's own bytes, and every failure is a platform::Failure that names
// the path.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <sys/stat.h>

#include "platform/files/Checksum.h"

namespace platform {

// A file that is read from its start to its end, in pieces.
class InputFile {
 public:
  // Throws FileNotFound, PermissionDenied or PathAccess.
  explicit InputFile(const std::string& path);
  ~InputFile();
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;

  // Reads up to `size` bytes into `buffer`; returns how many, fewer only at the end of the file. Throws
  // DeviceError.
  std::size_t Read(char* buffer, std::size_t size);
  // The same from the byte at `offset` on, wherever Read has come to.
  std::size_t ReadAt(std::uint64_t offset, char* buffer, std::size_t size);
  // The file's length in bytes when it was opened.
  std::uint64_t size() const { return static_cast<std::uint64_t>(entry_.st_size); }
  // The system's entry of the file when it was opened.
  const struct stat& entry() const { return entry_; }
  // For a reader of its own; it stays open as long as this object lives.
  int descriptor() const { return descriptor_; }

  // Reads on to the end, and gives the checksum of all that Read has ever read. Throws DeviceError.
  std::uint64_t ChecksumToTheEnd();
  // The same, and makes the file known (platform/files/KnownFiles.h).
  void Remember();

 private:
  int descriptor_;
  struct stat entry_ {};
  Checksum checksum_;
  std::string path_;
};

// The whole file. Throws as InputFile does, and OutOfMemory when it is longer than `most` bytes.
std::string ReadFile(const std::string& path, std::uint64_t most = std::uint64_t{1} << 30);
// The same, and makes the file known (platform/files/KnownFiles.h).
std::string ReadDataFile(const std::string& path, std::uint64_t most = std::uint64_t{1} << 30);

}  // namespace platform
