// The ways out that do not start in a window: SIGTERM, SIGINT, SIGHUP and the end of the desktop session.
#pragma once

#include <functional>

namespace platform {

// Calls `leave` on the window thread, from the event loop, when the system asks the program to end. Later
// requests call it again, so that a way out that a full disk has blocked can be tried anew. Needs a
// QApplication.
void ListenForTheWayOut(std::function<void()> leave);

// Calls `save` once when the display is gone, as at the end of a desktop session that has no manager. No
// window can be shown any more and nobody can be asked; the process ends behind it.
void ListenForTheLostDisplay(std::function<void()> save);

}  // namespace platform
