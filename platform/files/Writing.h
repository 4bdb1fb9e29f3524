// Whether a file is being written at this moment, by whichever thread.
#pragma once

namespace platform {

// For who would otherwise end the process in the middle of it.
bool IsFileBeingWritten();

}  // namespace platform
