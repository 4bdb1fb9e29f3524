// Which rows of the open journal stand in memory otherwise than in its file, and what the file holds of them.
//
// Whoever changes a row says so before; who has read or written the journal's file says that too. So it is
// known at any moment what would be lost with the memory, without a look at the file.
#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "store/FileCheck.h"

struct JournalPage;

namespace store {

// What the file holds of a row that has changed since.
struct RowInFile {
  bool isThere = true;    // false: the file has no such row
  FileCheck body;         // of an empty text where there is none
  double PageDate = 0;    // days since 30 December 1899
  bool isMissed = false;  // whether a person would miss the change: a blank page's blank document nobody does
};

// What the file holds of a row that is as it was read or written.
RowInFile AsInFile(const JournalPage& page, bool isMissed = true);

// To be called before Body or PageDate of a row of Pages changes. What the row held before its first change
// counts as what the file holds; a later call adds at most that the change would be missed.
void RowWillChange(std::int32_t row, bool isMissed = true);

// The same behind the change; `before` is the row as the file holds it, if it holds it.
void RowHasChanged(std::int32_t row, const JournalPage& before);

// To be called when a row has been added to Pages that the file does not have.
void RowWasAdded(std::int32_t row, bool isMissed = true);

// The file holds what memory holds: it has been read or written.
void RowsAreStored();
// The file has been written with these rows, which are what Pages was then.
void RowsAreStoredAs(const std::vector<JournalPage>& rows);

// By the number of the row; empty when no pages are in memory.
const std::map<std::int32_t, RowInFile>& UnstoredRows();

// Whether a person would miss anything if all of these were lost.
bool AreRowsMissed();

}  // namespace store
