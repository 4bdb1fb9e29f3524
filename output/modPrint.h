// Printing a journal.
#pragma once

// Shows the print dialog and prints what was chosen in it: the selection of the page on show, as it stands in
// the text box, or pages of the open journal, as they were last stored, as plain text in the journal's font.
// Changes neither the pages nor PageDirty nor the page on show. A failure is shown, and the routine goes on
// with its next statement.
void PrintJournal();
