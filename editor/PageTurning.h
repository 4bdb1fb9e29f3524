// Moving among the pages of the open journal, and setting the text box up for each.
//
// The routines that turn to a page overwrite the text box: whoever calls them has stored the page before.
#pragma once

void GoFirstPage();
void GoBackPage();
// Past the last page it asks whether to add one.
void GoNextPage();
void GoLastPage();
// Asks, and adds a page at the end of the book.
void AddNewPage();

// Date and number of the current page, then ApplyJournalFont.
void ShowPageHeader();
// The caret goes to the end of the text and takes the journal's default font.
void ApplyJournalFont();
// The caret takes it where it stands.
void GiveCaretJournalFont();
// Blanks the text box for the page just made and dates that page now.
void StartNewPage();
// Pages for a journal that has no file yet: a title page and page 1, both dated now.
void NewJournalPages();

// Writes the journal's file, hides the journal window and tells JournalClosed. A file that cannot be written
// is told in a message, and the journal stays open; from the second time on a question names the pages that
// the file lacks, and the person may close without them. A journal that lacks nothing closes all the same.
// `isJustSaved`: StoreCurrentPage has written the file a moment ago, and only what is not so is written
// again.
void CloseJournal(bool isJustSaved = false);
