// The ways out that do not start in a window: SIGTERM, SIGINT, SIGHUP and the end of the desktop session.
//
// A session asks for a save first, and need not end then: it may go on, as at a checkpoint, or when another
// program or the person stops the logout. It tells of its end only when all have saved.
#pragma once

#include <chrono>
#include <functional>

namespace platform {

// Calls `leave` on the window thread, from the event loop, when the system asks the program to end. Later
// requests call it again, so that a way out that a full disk has blocked can be tried anew. Calls `save` when
// the session asks for a save; where that returns false, since it could not be done now, the session is asked
// to stay. Needs a QApplication.
void ListenForTheWayOut(std::function<void()> leave, std::function<bool()> save = {});

// Whether such a request waits to be carried out: whoever insists on something is to give in.
bool IsLeavingWanted();

// Calls `save` once when the display is gone, as at the end of a desktop session that has no manager, and
// lets nothing of the toolkit end the process before it is through. No window can be shown any more and
// nobody can be asked; `save` must end the process itself, and call nothing that talks to the display. It
// runs on the window thread; on another one only if that does not come within `patience` and has no file in
// its hands. A save that has begun is waited for twelve times as long.
void ListenForTheLostDisplay(std::function<void()> save,
                             std::chrono::milliseconds patience = std::chrono::seconds(5));

}  // namespace platform
