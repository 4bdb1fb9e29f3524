// The bookcase on disk: journal.tqt to Journals and back.
#pragma once

#include <optional>
#include <string>

#include "store/UnstoredLog.h"

// Reads journal.tqt of the program's folder into Journals, JournalCount, MasterPassword and PageShift, and
// tells JournalAdded of each row. A missing file changes nothing. A damaged one is told in a message and read
// as far as it is whole. A file without a whole header, or one that cannot be read, is told in a message, and
// then the process ends with nothing written.
void LoadJournalIndex();

// Writes journal.tqt from the same variables, removed rows left out. Names are scrambled in the rows
// themselves, so only the end of the process may follow. A damaged file is kept beside before it is written
// over. On failure throws platform::Failure; file and rows are then as they were.
void SaveJournalIndex();

// The same with the names left as they are, for a program that may go on.
void WriteJournalIndex();

// Whether the bookcase in memory has changed since it was loaded or last written.
bool IsBookcaseUnsaved();

// The index as SaveJournalIndex would write it now, for the log; none when the file has all of it. Comes back
// in the same bytes until the bookcase changes.
std::optional<store::UnstoredFile> UnstoredBookcaseIndex();

// Whether the bytes of two index files tell of the same bookcase: their filler and the counts of pages as
// last seen aside, and never when one of them cannot be read whole.
bool IsSameBookcase(const std::string& one, const std::string& other);
