// The start of the program.
#pragma once

#include "platform/RunningInstance.h"

// Starts the program up to its first window: the lock screen where there is a bookcase, else the first-run
// dialog, which blocks. Returns at once after handing over to a running instance.
void Main(platform::RunningInstance& instance, const platform::ActivationToken& token);

// Hands over to the instance that runs already and ends this process; returns when there is none that
// answers.
void ActivatePrevInstance(const platform::RunningInstance& instance, const platform::ActivationToken& token);
