// The few words of the X server's language that the toolkit does not speak for us.
//
// Each routine takes the connection that it speaks on; none is undone by a server that does not answer.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>

namespace platform {

using X11Connection = std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t*)>;

// A connection of our own to the display that the desktop names; empty where there is none.
X11Connection ConnectToX11();

// The toolkit's own connection, for messages about its windows; null where it speaks to another kind of
// display.
xcb_connection_t* X11OfTheToolkit();

// The server's present time in milliseconds; 0 when it does not tell within a second. Only on a connection of
// our own, whose other events are thrown away.
std::uint32_t X11Time(xcb_connection_t* connection);

// Tells the desktop that the start with this id is over, so that its busy pointer ends.
void EndStartupSequence(xcb_connection_t* connection, std::string_view startupId);

// Tells the window manager to leave the window, which is not shown yet, out of the lists of windows.
void SkipTaskBar(xcb_connection_t* connection, xcb_window_t window);

// Asks the window manager to bring the window to the front, for an action of the user at this server time.
void ActivateX11Window(xcb_connection_t* connection, xcb_window_t window, std::uint32_t timestamp);

// Asks the clipboard manager to take what is copied, as text alone or also as rich text and pictures. Its
// answer, a SelectionNotify, comes to the window that is returned, which lives as long as the connection; 0
// where there is no manager.
xcb_window_t AskClipboardManager(xcb_connection_t* connection, bool isTextAlone);

}  // namespace platform
