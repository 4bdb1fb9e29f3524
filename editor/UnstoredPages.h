// What of the journals' pages stands in memory alone, for the log.
#pragma once

#include <string>
#include <vector>

#include "store/UnstoredLog.h"

// The open journal's rows that its file lacks, with the text of the page on show as it would be stored, and
// the pages that were left behind. Nothing of a journal of which nothing would be missed. A page that has not
// changed since the last call comes back in the same bytes.
std::vector<store::UnstoredJournal> UnstoredJournals();

// For a journal that is closed though its file could not be written: its pages stay with the log until the
// journal is opened again, in this run or the next.
void LeavePagesBehind();

// The log ends, and with it what is left behind in this run.
void ForgetPagesLeftBehind();

// Puts the pages that were left behind into the journal whose rows have just come into Pages, and counts them
// as unstored. Whether there were any; then PageCount tells of Pages again, and the page on show must be
// shown anew.
bool TakePagesBack(const std::string& fileName);
