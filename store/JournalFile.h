// A journal's file: all its pages, read and written whole. docs/file-formats.md shows the layout.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "state/State.h"

namespace store {

class JournalPieces;

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
void WritePieces(const std::string& fileName, const JournalPieces& file);

// The first half of that, before the file is replaced: an alien one is refused, and one that is damaged, or
// that another program has changed, is kept beside. Throws as SaveJournalFile does.
void KeepWhatIsThere(const std::string& fileName);
// The other end of it: tells in a message what was kept of another program.
void TellKeptJournal(const std::string& fileName);

// Whether the file begins as a journal does; one that is cut within its beginning does, too. Throws as
// platform::InputFile does.
bool IsJournal(const std::string& path);

}  // namespace store

// The name that stands in for an empty one, after a message that says so.
std::string& WithFallbackName(std::string& fileName);

// The file's PageCount; 0 when it is missing or no journal, or when its count is negative. Overwrites
// PageCount, as no journal is open when it is called. The name is replaced by the fallback when it is empty.
// Throws platform::Failure when the file is there and cannot be read.
std::int32_t PeekJournalPageCount(std::string& fileName);
