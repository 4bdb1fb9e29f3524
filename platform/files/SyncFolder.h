// Names on their way to the disk. What a file holds is there when the file was synced; the name that it has
// taken or lost is, when its folder was.
#pragma once

#include <exception>
#include <string>

#include "platform/Failure.h"

namespace platform {

// A file has taken its name, or has lost it, but the disk failed to take that in. As long as the machine runs
// all is done; a power cut may bring back what was there before.
class NotYetOnDisk : public Failure {
 public:
  NotYetOnDisk(int error, const std::string& path);
};

// What a failed ReplaceFile left, for a message: "the file is as it was", or, after NotYetOnDisk, that it is
// the new one.
const char* FileAfter(const std::exception& failure);

// Whether fsync failed so because the file system, or what the program is shut in, knows no such thing. Those
// bring all to the disk by themselves, and a failure would only keep anything from ever being saved.
bool KnowsNoSync(int error);

// Brings the names in the folder that `path` lies in to the disk. Does nothing where the file system knows no
// such thing, or where the folder may not be read. Throws NotYetOnDisk, which names `path`.
void SyncFolderOf(const std::string& path);

}  // namespace platform
