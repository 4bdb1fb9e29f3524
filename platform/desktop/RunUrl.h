// Handing an address to the desktop.
#pragma once

#include <functional>
#include <string>

namespace platform {

// Has the desktop open a web address, or a file by its full path (which starts with a slash, in the system's
// own bytes), in the program that it keeps for it. Returns at once; that program lives on without this one,
// and what becomes of it is never told.
void RunUrl(const std::string& address);

// The seam: what gets the address instead of the desktop, a file's as a "file:" address. An empty function
// gives the desktop its place back. Returns the one before.
using UrlRunner = std::function<void(const std::string& url)>;
UrlRunner SetUrlRunner(UrlRunner runner);

}  // namespace platform
