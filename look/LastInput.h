// How a person has spoken to the program last.
#pragma once

namespace look {

// From now on it is noted. May be called more than once.
void NoteInput();

// By a key, and not by the mouse.
bool WasLastInputAKey();

}  // namespace look
