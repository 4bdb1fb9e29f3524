// The passes over one page's text, between its enciphered body and the text box or a string.
//
// An alien page (editor/AlienPage.h) is shown as it comes out, and never written over.
#pragma once

#include <cstdint>
#include <string>

// Deciphers Pages(CurrentPage).Body into the text box. PageDirty is cleared, but not for an empty body, whose
// page counts as changed. The first alien page since the journal was opened is told in a message; the text
// box is read-only for as long as it holds one.
void ShowCurrentPage();

// Enciphers the text box into Pages(CurrentPage).Body and writes the journal's file, if PageDirty is set.
// Nothing is stored while the text box holds the text of another page or another journal, or of an alien
// page. Whether the file was written, or is on its way (editor/SavingPages.h).
bool StoreCurrentPage();

// Whether the page on show has text that its row does not hold. A blank page counts as changed, but has none.
bool IsTextUnstored();

// Whether the memory holds anything of the open journal that a person would miss in its file: text of the
// page on show, or pages whose save failed.
bool IsAnythingUnstored();

// For the end of the program on a failure: stores the text box's text as StoreCurrentPage does, but into the
// row that it came from, wherever the failure has left CurrentPage. What an earlier failure kept from the
// file is written as well, and nothing is on its way any more. Nothing is stored unless the journal window is
// shown with its journal. Whether the file was written.
bool StoreOpenPage();

// The RTF of any page, 0 to PageCount; changes no variable. Empty for a page that was never stored.
std::string GetPlainPage(std::int32_t page);
