// The shared state as a fixture wants it, without the steps by which the program gets there. For tests,
// benchmarks, fuzz targets and the tour's stages: no room can include a file of this folder.
#pragma once

#include "state/PageInHand.h"

struct Staging {
  static PageInHandValues& Values() { return PageInHand::Values(); }
};

// The page in hand, to be set at will. The rule of state/PageInHand.h is asserted at the program's next step.
inline PageInHandValues& Staged() {
  return Staging::Values();
}

// Puts every variable back to its value at the start of the program.
inline void ResetState() {
  Staged() = {};
  PageInHand::PagesForgotten();
  Journals.assign(1, {});
  JournalCount = 0;
  Pictures.clear();
  PictureCount = 0;
  PicturesUnsaved = false;
  MasterPassword.clear();
  PageShift = 0;
  BookcaseLoaded = false;
  chkGotoLastPage = 1;
  optColor = 0;
  FileWillBeWritten = nullptr;
  SomethingWasStored = nullptr;
  LogThrough = nullptr;
  JournalAdded = nullptr;
}
