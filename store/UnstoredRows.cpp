#include "store/UnstoredRows.h"

#include <algorithm>
#include <iterator>

#include "state/State.h"

namespace store {
namespace {

using Rows = std::map<std::int32_t, RowInFile>;

// Pages that have been forgotten are nobody's any more.
Rows& TheRows() {
  static Rows rows;
  if (Pages.empty()) rows.clear();
  return rows;
}

bool IsSame(const JournalPage& one, const JournalPage& other) {
  return one.Body.Is(other.Body) && one.PageDate == other.PageDate;
}

}  // namespace

RowInFile AsInFile(const JournalPage& page, bool isMissed) {
  return {true, CheckOf(page.Body), page.PageDate, isMissed};
}

void RowWillChange(std::int32_t row, bool isMissed) {
  const bool isFirst = !TheRows().contains(row);
  if (isFirst) RowHasChanged(row, Pages.at(static_cast<std::size_t>(row)));
  RowInFile& inFile = TheRows()[row];
  inFile.isMissed = isMissed || (!isFirst && inFile.isMissed);
}

void RowHasChanged(std::int32_t row, const JournalPage& before) {
  TheRows().try_emplace(row, AsInFile(before));
  TheRows()[row].isMissed = true;
}

void RowWasAdded(std::int32_t row, bool isMissed) {
  TheRows()[row] = {false, CheckOf({}), 0, isMissed};
}

void RowsAreStored() {
  TheRows().clear();
}

void RowsAreStoredAs(const std::vector<JournalPage>& rows) {
  for (auto entry = TheRows().begin(); entry != TheRows().end();) {
    auto& [row, inFile] = *entry;
    const auto at = static_cast<std::size_t>(row);
    const bool isThere = at < rows.size();
    if (isThere) inFile = AsInFile(rows[at], inFile.isMissed);
    entry = isThere && IsSame(rows[at], Pages.at(at)) ? TheRows().erase(entry) : std::next(entry);
  }
}

const Rows& UnstoredRows() {
  return TheRows();
}

bool AreRowsMissed() {
  return std::ranges::any_of(TheRows(), [](const auto& entry) { return entry.second.isMissed; });
}

}  // namespace store
