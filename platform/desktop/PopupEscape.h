// Escape in an open list of choices.
#pragma once

namespace platform {

// From now on the key that closes such a list closes nothing else. The toolkit closes it as soon as the key
// asks whether it is a shortcut, and on Wayland hands the key itself to the dialog behind it, which goes too.
void KeepEscapeToPopups();

}  // namespace platform
