// All ways out of the program, and what each of them saves, in this order.
//
// A person, at the bookcase or at the lock (SaveAndExit): the pictures that were left unsaved, the index.
//   What cannot be saved is told, and the program stays; from the second time on a question names it, and
//   the person may leave without.
//
// The system, by SIGTERM, SIGINT, SIGHUP or the end of the desktop's session (LeaveTheProgram): the open
//   page, its journal's file, the pictures that were left unsaved, the index. Nobody is asked, and the end
//   comes whatever could not be saved; the error output has it.
//
// The session, when it asks for a save before it ends, or at a checkpoint (SaveAndStay): what is unsaved of
// the
//   same. The program stays; what cannot be saved is told.
//
// Nobody: the display is gone (SaveWithoutDisplay). The same.
//
// A failure that nobody guards (StoreOnFailure): the open page, its journal's file. The index stays unsaved.
//
// On each road the log of what is not stored comes last: it goes when nothing is left for it, and is brought
// up to date and waited for otherwise. So what could not be saved is there again at the next start, and so is
// the index after a failure.
//
// A person reaches the bookcase only by closing the journal, which stores its page and file (frmJournal's
// CloseBox), or leaves its pages to the log. Nothing is saved, for there is nothing, at the exit of the first
// run's dialog, at a start that finds the diary open or its index unreadable.
//
// On the first two roads the desktop's clipboard manager, where there is one, is handed what was copied
// before anything is saved, and waited for a moment.
//
// On every road each file is tried on its own: one that cannot be written keeps none of the others from it.
// Nothing is forgotten on the way: until the end is certain, windows, dialogs, pages and names stay as they
// are, so that whoever stays can go on. Before the bookcase is loaded, and while a failure ends the program,
// the index is left alone: it would be an empty or a doubtful one in the place of a good one.
#pragma once

// Ends the process when all is saved, or when nothing new is missing, or when the person leaves without it.
// Returns only when the program is to stay.
void SaveAndExit();

// Saves what can be saved, without a window or a question, and ends the process. During a pass it waits until
// that is over, and takes away the message that may hold it up.
void LeaveTheProgram();

// Saves what is unsaved without a question, and returns. What there is to tell is told from the event loop.
// False during a pass: then it is done when that is over.
bool SaveAndStay();

// The same as LeaveTheProgram at once, and without any call to the display.
void SaveWithoutDisplay();

// Stores the open page and brings the log up to date: the last will of a program that a failure ends.
void StoreOnFailure();
