// Saving the open journal's file for a person who sees the book. A long one is written while the person goes
// on (store/JournalSaving.h); who needs the file as memory has it waits for that.
#pragma once

#include <string>

// For a page that is left: saves the open journal's file, or begins to. Throws what is to be told where it
// could not be written and a person would miss anything; what fails only later is told when it does. Whether
// it is saved or on its way.
bool SaveOpenJournal();

// Waits for what is on its way, and tells what failed of it. A wait of more than a second shows the wait
// window, and the windows stay alive. To be called by whoever reads or replaces the file, or ends the journal
// or the program.
void AwaitSaving();

// For an end of the open journal: its file is on the disk afterwards, as SaveJournalFile leaves it.
// `isJustSaved`: SaveOpenJournal did so a moment ago. Then the file is not written a second time, unless it
// is not what was written. Throws as SaveJournalFile does; waits as AwaitSaving does.
void SaveAtTheEnd(const std::string& fileName, bool isJustSaved);
