// A journal's file: all its pages, read and written whole. docs/file-formats.md shows the layout.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "state/State.h"

namespace store {

enum class JournalHealth { Sound, Damaged, Alien };

struct DecodedJournal {
  std::vector<JournalPage> pages;  // rows that the count promises and the bytes lack are empty
  JournalHealth health = JournalHealth::Sound;
  std::int32_t wholePages = 0;  // pages that the bytes hold whole
};

// Reads a journal file of the program's folder. Throws platform::Failure when it cannot be read. A damaged
// one is remembered, so that SaveJournalFile keeps it beside before it writes over it.
DecodedJournal ReadJournalFile(const std::string& fileName);

// Writes these pages to that file of the program's folder, with a block of MasterPassword scrambled once more
// and padded to 512 bytes. Throws as SaveJournalFile does, and SubscriptOutOfRange when `pages` is empty.
void WriteJournalFile(const std::string& fileName, const std::vector<JournalPage>& pages);

// Whether the file begins as a journal does; one that is cut within its beginning does, too. Throws as
// platform::InputFile does.
bool IsJournal(const std::string& path);

}  // namespace store

// The name that stands in for an empty one, after a message that says so.
std::string& WithFallbackName(std::string& fileName);

// Writes Pages, PageCount and the password block to that file of the program's folder; says so first when
// there is no password. Nothing on disk is touched before all bytes are there. A file that another program
// has put there since it was last read or written is kept beside first, and a message tells so afterwards.
// Throws platform::Failure, with the file as it was, when Pages does not belong to the journal of that file
// (SubscriptOutOfRange), when the password is too long for the block (InvalidArgument), when the file is
// alien (PermissionDenied), and on a disk that cannot be written.
void SaveJournalFile(const std::string& fileName);

// The file's PageCount; 0 when it is missing or no journal, or when its count is negative. Overwrites
// PageCount, as no journal is open when it is called. The name is replaced by the fallback when it is empty.
// Throws platform::Failure when the file is there and cannot be read.
std::int32_t PeekJournalPageCount(std::string& fileName);
