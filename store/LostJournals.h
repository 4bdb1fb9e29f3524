// Journal files that lie in the program's folder with no row of the index to say so.
#pragma once

// Adopts each as a new row named "Recovered Lost Journal (...)" and tells JournalAdded of it, in the bytewise
// order of the files' names. Only a row with the very same FileName, case included, means a file. To be
// called when no journal is open. Tells nothing: a file that is no journal, or cannot be read, joins with no
// pages. One whose name no row can hold is left out.
void RecoverLostJournals();

// Tells in one message, if there are any, which files were left out, why, and what to do.
void TellLeftOutJournals();
