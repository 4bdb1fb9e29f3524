// What the log of an earlier run holds comes back: the bookcase before it is read, the pictures and the pages
// when the password has been given.
//
// A log that is damaged or alien changes nothing. What cannot be brought back, since it is of another
// password or somebody else has changed its file, stays in the log, which gets another name. A message tells
// it all.
#pragma once

// Reads journal.tql, and puts the index of it in the place of journal.tqt, or of none, where that is still
// the one that the log began from. The same holds for the others. False, and told, when this index could not
// be written, though the folder is writable or the diary has no other index: the start must go no further,
// and has changed nothing.
bool RollBookcaseForward(bool isWritable);

// Puts the pictures and the pages of the log that RollBookcaseForward read into their files, and takes the
// log away. To be called when no journal is open and before the picture store is loaded. False when something
// must stay in the log, or the log itself cannot be taken away: then no new one may be begun.
bool RollPagesForward();

// Tells what came back and what did not, if there was anything.
void TellWhatCameBack();
