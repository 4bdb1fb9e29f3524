// What of the journals' pages stands in memory alone, for the log.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <QtCore/QDeadlineTimer>

#include "richtext/document/PageParts.h"
#include "store/PageCipher.h"
#include "store/UnstoredLog.h"

// The text of the page on show, with the word that is being composed in it. It is a value: any thread may
// make the body of it.
struct UnstoredText {
  std::int32_t row = 0;
  std::int32_t shift = 0;
  richtext::PageParts parts;
  store::Filler filler{};

  // As it would be stored.
  std::string Body() const;
};

// What stands in memory alone. The row of `text` is one of the last journal's, and has no body yet.
struct UnstoredPages {
  std::vector<store::UnstoredJournal> journals;
  std::optional<UnstoredText> text;

  // Whether nothing has changed in between; the same text at another time has other filler.
  bool operator==(const UnstoredPages& other) const;
};

// The open journal's rows that its file lacks, with the text of the page on show, and the pages that were
// left behind. Nothing of a journal of which nothing would be missed.
UnstoredPages PagesUnstored();
// Gets on with copying the text of the page on show until the time is over. Whether PagesUnstored has none of
// it left to copy.
bool CopyUnstoredText(const QDeadlineTimer& until);

// The journals, with the text's body in its row. On any thread.
std::vector<store::UnstoredJournal> WithText(UnstoredPages pages);

// For a journal that is closed though its file could not be written: its pages stay with the log until the
// journal is opened again, in this run or the next.
void LeavePagesBehind();

// The log ends, and with it what is left behind in this run.
void ForgetPagesLeftBehind();

// Puts the pages that were left behind into the journal whose rows have just come into Pages, and counts them
// as unstored. Whether there were any; then PageCount tells of Pages again, and the page on show must be
// shown anew.
bool TakePagesBack(const std::string& fileName);
