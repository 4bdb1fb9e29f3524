// Bringing the pages of a log into the journal that they belong to, after a program that ended too soon.
#pragma once

#include <cstdint>
#include <vector>

#include "store/UnstoredLog.h"

struct JournalPage;

namespace store {

enum class Rolled {
  IntoItsRow,  // the row was as the page began from it
  AtTheEnd,    // the row has changed since, or is gone: a page of its own behind the last one
  IsThere,     // the row holds the page already
  NoDocument,  // it was enciphered with another key: left out
};

struct RolledPage {
  std::int32_t logged = 0;  // the row that the log tells
  std::int32_t row = 0;     // where the page stands now; as logged where it was left out
  Rolled how = Rolled::IntoItsRow;
};

// Puts the logged pages into `pages`, the rows that the journal's file holds (none where it has no file), as
// if each had been left. Nothing that `pages` holds is written over but the very body that a page began from.
// `shift` is the page cipher's key. A date that alone differs goes into a row that is as it was, and is
// dropped otherwise.
std::vector<RolledPage> RollForward(const std::vector<UnstoredPage>& logged, std::int32_t shift,
                                    std::vector<JournalPage>& pages);

}  // namespace store
