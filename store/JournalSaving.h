// Saving the open journal: at once, or by a thread of its own while the person goes on.
//
// Whoever leaves a page of a long journal waits for the page to be in the log, and not for the file: the rows
// as they are then, which share their bodies with Pages, are written by a thread
// (platform/files/FileAside.h). There is one such file on its way and no second one. What is saved meanwhile
// waits for its end, and of what waits the newest alone is written.
//
// Until the file has its name the rows count as unstored, so the log keeps them. A page that is written on
// meanwhile begins from what the file holds, or from what it will hold: nobody knows which it is when a kill
// comes, and so the log tells both (RowsOnTheirWay). When the file is there, its rows are stored, and only
// then they go from the log.
//
// All of it belongs to the window thread.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "store/UnstoredLog.h"

// Writes Pages, PageCount and the password block to that file of the program's folder; says so first when
// there is no password. Nothing on disk is touched before all bytes are there. A file that another program
// has put there since it was last read or written is kept beside first, and a message tells so afterwards.
// What is on its way to that file is waited for.
// Throws platform::Failure, with the file as it was, when Pages does not belong to the journal of that file
// (SubscriptOutOfRange), when the password is too long for the block (InvalidArgument), when the file is
// alien (PermissionDenied), and on a disk that cannot be written.
void SaveJournalFile(const std::string& fileName);

namespace store {

// A shorter file is on the disk before the log would be: of both the syncs take the most.
inline constexpr std::size_t LongFile = std::size_t{256} * 1024;

enum class Until {
  Logged,  // the log has what the file lacks; without a log, until the file has it
  Begun,   // the thread has it: the caller goes on to wait
};
// Does what SaveJournalFile does, with its failures, if the file is a short one, or if there is no log that
// takes the pages in. Otherwise only begins to: then IsSaving, and `ended` is called out of the event loop
// when TakeSaved has something to take.
void BeginSavingJournalFile(const std::string& fileName, Until until, std::function<void()> ended);

// Whether something is on its way, or is to be taken.
bool IsSaving();
// Whether the file that is on its way has come to its end, within so long.
bool WaitForSaving(std::chrono::milliseconds most);
// Waits for that end, and tells the rows and the log of it. What was saved meanwhile is on its way then.
// Throws as SaveJournalFile does when it failed, and nothing newer is on its way.
void TakeSaved();

// Whether the last save has brought every row to the file, and the file is still the one of that save.
bool IsFileAsSaved(const std::string& fileName);

// What that row of Pages will be in the file when something that is on its way gets there.
std::vector<RowOnItsWay> RowsOnTheirWay(std::int32_t row);

}  // namespace store
