// Files of the program's folder.
//
// Paths are the system's own bytes. Names that come out of a data file are Windows-1252 and are turned into
// the system's encoding by PathOf. Every failure is a platform::Failure that names the path.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <vector>

#include "platform/files/Checksum.h"

namespace platform {

// The folder that the program's binary lies in, without a separator at its end.
std::string ProgramFolder();
// The seam: another folder in its place; an empty path restores the real one.
void SetProgramFolder(std::string folder);

// The path of a file of the program's folder. `name` is Windows-1252 and holds no separator.
std::string PathOf(std::string_view name);

// True for an existing entry that is not a folder.
bool FileExists(const std::string& path);
// True when the folder has no entry of that name, of any kind. An entry that cannot be looked at is not
// missing.
bool IsMissing(const std::string& path);

// Whether a file can be created in the folder: tried, and the trial removed.
bool CanWriteTo(const std::string& folder);

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

// Throws when the file exists and cannot be deleted; a missing file is no failure. A power cut can bring it
// back until its folder is synced (platform/files/SyncFolder.h).
void DeleteFile(const std::string& path);

// Keeps a copy of the file beside it, under its name with ".damaged" behind it, or with ".1.damaged" and so
// on where that name is taken. A file that was kept and has not been replaced since is not kept twice.
// Returns the copy's path, when that is on the disk; throws FileNotFound, or as ReplaceFile does when there
// can be no copy. The copy is for its owner alone, at the latest when ReplaceDataFile has replaced the file.
std::string KeepDamaged(const std::string& path);

// Gives the file itself, or whatever has its name, the first such name that is free, and returns it. That
// takes no room on a full disk. A power cut can undo it until the folder is synced
// (platform/files/SyncFolder.h). Throws PermissionDenied, PathNotFound or PathAccess, with nothing changed.
std::string MoveAside(const std::string& path);

// What the name of a file that is being written has behind the name that it will take.
inline constexpr std::string_view UnfinishedEnding = ".thornquill-unfinished";

// Removes the files that a killed process did not finish. Failures are ignored.
void RemoveUnfinished(const std::string& folder);

// The names (no folder, in the code page) of the files that match "*.tqf", in the order of their bytes. A
// name that the code page cannot hold is left out.
std::vector<std::string> ListJournalFiles(const std::string& folder);

}  // namespace platform
