// The start of the program.
#pragma once

#include "platform/desktop/RunningInstance.h"

// Starts the program up to its first window: the lock screen where there is a bookcase, else the first-run
// dialog, which blocks. Returns at once after handing over to a running instance.
void Main(platform::RunningInstance& instance, const platform::ActivationToken& token);

// Returns when this instance is the first one, or has become it because the other one ended meanwhile. Else
// hands over to the other one, or says in a message that it does not answer, and ends this process.
void ActivatePrevInstance(platform::RunningInstance& instance, const platform::ActivationToken& token);
