// A bookcase is read or the program ends, and neither changes the file. What was read is saved and read again
// as the same bookcase.
#include "store/BookcaseFile.h"

#include <numeric>

#include "fuzz/Desk.h"

namespace {

constexpr std::size_t SmallestRecord = 38;

std::size_t BytesOf(std::size_t sum, const JournalEntry& entry) {
  return sum + SmallestRecord + entry.Name.size() + entry.FileName.size() + entry.FontName.size();
}

}  // namespace

void Try(std::string_view input) {
  const std::string bytes(input);
  Desk desk;
  desk.Write("journal.tqt", bytes);
  LoadJournalIndex();
  desk.RequireFiles({{"journal.tqt", bytes}}, "reading leaves the file alone");
  Require(
      std::accumulate(Journals.begin() + 1, Journals.end(), MasterPassword.size(), BytesOf) <= input.size(),
      "rows come from bytes");
  Require(desk.ends == (BookcaseLoaded ? 0 : 1), "a bookcase is read, or the program ends");
  Require(desk.damageTold == 1 || (desk.damageTold == 0 && BookcaseLoaded), "damage is told once");
  if (!BookcaseLoaded) return;

  std::vector<JournalEntry> journals = Journals;
  std::erase_if(journals, [](const JournalEntry& entry) { return entry.Deleted != False; });
  const std::string password = MasterPassword;
  const std::int32_t shift = PageShift;
  const bool wasDamaged = desk.damageTold == 1;
  SaveJournalIndex();
  desk.RequireKept("journal.tqt", bytes, wasDamaged);

  ResetState();
  LoadJournalIndex();
  Require(Journals == journals && MasterPassword == password && PageShift == shift,
          "the bookcase comes back");
  Require(BookcaseLoaded && desk.damageTold == wasDamaged, "what is saved is sound");
}
