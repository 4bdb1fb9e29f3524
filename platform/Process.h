// The end of the process.
#pragma once

#include <functional>

namespace platform {

// Ends the process at once, whatever windows are open; nothing more is stored. Does not return, unless a test
// stands in its place.
void EndProcess();

// The seam: what runs instead of the end. An empty function restores the real one. Returns the one before.
using ProcessEnder = std::function<void()>;
ProcessEnder SetProcessEnder(ProcessEnder ender);

}  // namespace platform
