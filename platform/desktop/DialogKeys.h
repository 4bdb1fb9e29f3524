// The keys while a modal dialog stands over a window on Wayland.
#pragma once

namespace platform {

// From now on a window behind a modal dialog that is given the keys hands them on to the dialog. The toolkit
// asks for each window that has become the active one once more, a moment later: when one dialog goes and
// another comes, a desktop that heeds this gives the keys back to the window between them, which takes none.
void KeepTheKeysInDialogs();

}  // namespace platform
