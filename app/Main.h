// The start of the program, and the ways out that do not start in a window.
#pragma once

#include "platform/RunningInstance.h"

// Starts the program up to its first window: the lock screen where there is a bookcase, else the first-run
// dialog, which blocks. Returns at once after handing over to a running instance.
void Main(platform::RunningInstance& instance, const platform::ActivationToken& token);

// Hands over to the instance that runs already and ends this process; returns when there is none that
// answers.
void ActivatePrevInstance(const platform::RunningInstance& instance, const platform::ActivationToken& token);

// What the system's request to end comes to: an open journal is stored and closed, the index is saved, and
// the process ends. Before the bookcase is loaded, or while a failure ends the program, the index is left
// alone. What cannot be written keeps the program alive, with its message.
void LeaveTheProgram();

// Stores the open page and the index when the display is gone, without a window or a question, and ends the
// process.
void SaveWithoutDisplay();
