// All ways out of the program, and what each of them saves, in this order.
//
// A person, at the bookcase or at the lock (SaveAndExit): the pictures that were left unsaved, the index.
// What
//   cannot be saved is told, and the program stays; from the second time on a question names it, and the
//   person may leave without.
// The system, by SIGTERM, SIGINT, SIGHUP or the end of the desktop's session (LeaveTheProgram): the open
// page,
//   its journal's file, the pictures that were left unsaved, the index. Nobody is asked; what cannot be saved
//   is said on the error output, and the end comes all the same.
// Nobody: the display is gone (SaveWithoutDisplay). The same.
// A failure that nobody guards (StoreOpenPage): the open page, its journal's file. The index stays unsaved.
//
// A person reaches the bookcase only by closing the journal, which stores its page and file (CloseJournal),
// so no page is open on the first road. The exit of the first run's dialog saves nothing, for there is
// nothing yet.
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

// The same at once, and without any call to the display.
void SaveWithoutDisplay();
