// A key that is held when its window goes does not go on in the next one.
#pragma once

namespace look {

// From now on its repeats end with its window: Enter that has put a question is not its answer, too. May be
// called more than once.
void KeepHeldKeysInTheirWindow();

}  // namespace look
