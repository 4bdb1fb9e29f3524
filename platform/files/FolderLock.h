// Which of several processes may read and write a folder of data files.
#pragma once

#include <string>

namespace platform {

// The lock of a folder. It lies on the folder itself: it leaves no file behind, holds on read-only disks, by
// every path to the folder and against other users, and goes with its process, however that ends. Programs
// that this one starts do not get it. On a disk of the network it holds for this machine alone.
class FolderLock {
 public:
  // Keeps the folder open, but does not lock it yet.
  explicit FolderLock(const std::string& folder);
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

  enum class Reply { Ours, Taken, NoLocks };
  // Takes the lock if it is free, and never waits. What was ours stays ours as long as this object lives.
  // NoLocks: the disk knows none, or the folder cannot be opened.
  Reply Take();

 private:
  int descriptor_;
};

}  // namespace platform
