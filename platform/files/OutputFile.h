// Files that are not replaced in one step: what an export makes can be made again. Every failure is a
// platform::Failure that names the path.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace platform {

// Opens the file, which is created where it is missing, writes the bytes behind its end, and closes it.
// Throws BadFileName, DiskFull, PermissionDenied, PathNotFound, DeviceError or PathAccess; a failed write can
// leave a part of the bytes.
void AppendToFile(const std::string& path, std::string_view bytes);

// A file that is written to at any place. It is created where it is missing, else it keeps what it holds.
class OutputFile {
 public:
  // Throws as AppendToFile does.
  explicit OutputFile(const std::string& path);
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  // Writes the bytes from the byte at `offset` on. Throws as AppendToFile does; after that it can be called
  // again with the same bytes.
  void WriteAt(std::uint64_t offset, std::string_view bytes);

  // Throws as AppendToFile does when the disk tells only now that bytes were lost. The file is closed all the
  // same, and closing it once more does nothing.
  void Close();

 private:
  int descriptor_;
  std::string path_;
};

// Makes the folder. Throws when something has that name already, or as AppendToFile does.
void MakeFolder(const std::string& path);

}  // namespace platform
