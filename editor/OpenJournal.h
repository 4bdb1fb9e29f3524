// Opening a journal's file.
#pragma once

#include <cstdint>
#include <string>

// Reads the file into Pages for CurrentJournal and shows its first page, or makes fresh pages where there is
// no file. Nothing of the journal before is left: Pages, text box and PageDirty start empty. An alien or
// unreadable file is told in a message, and then no journal is open (PagesJournal is 0). An empty name is
// replaced, in the caller too.
void LoadJournalFile(std::string& fileName);

// The message that such a file is damaged; `wholePages` counts the title page.
void TellDamagedJournal(const std::string& fileName, std::int32_t wholePages);
