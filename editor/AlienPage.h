// Pages that decipher to no document: of a journal that was written under another PageShift.
//
// Every page that this program ever stored begins as RTF does. One that does not could not be read by whoever
// writes over it, and is kept for the bookcase that can.
#pragma once

#include <cstdint>

// Whether the row of Pages holds such a page. One that was never stored, or is not there, is none.
bool IsAlienPage(std::int32_t page);

// Whether the text box's text comes from such a page.
bool ShowsAlienPage();

// Tells of the one on show, if it is the first since the journal was opened.
void TellAlienPage();
