// The input is a journal file without its 512 bytes of password, which nobody reads. What was read is saved
// and read again as the same pages; an alien file is left alone.
#include "store/JournalFile.h"

#include <algorithm>
#include <bit>
#include <numeric>

#include "fuzz/Desk.h"
#include "platform/Failure.h"
#include "store/JournalSaving.h"

namespace {

constexpr std::size_t MagicSize = 27;
constexpr std::size_t PasswordSize = 512;
constexpr std::size_t SmallestPage = 10;
constexpr std::size_t MostBlankRows = 1000;  // more of them, up to a million, only take time to write

std::string Name = "j00000.tqf";

std::string FileOf(std::string_view input) {
  std::string file(input);
  if (file.size() > MagicSize) file.insert(MagicSize, PasswordSize, ' ');
  return file;
}

bool Saves(const std::vector<JournalPage>& pages) try {
  Journals.resize(2);
  Journals[1].FileName = Name;
  Staged().PagesJournal = 1;
  MasterPassword = "!e";
  Pages = pages;
  PageCount = static_cast<std::int32_t>(pages.size()) - 1;
  SaveJournalFile(Name);
  return true;
} catch (const platform::Failure& failure) {
  Require(failure.kind() == platform::FailureKind::PermissionDenied, failure.what());
  return false;
}

// A date may be no number, which equals nothing: its bits are to come back.
bool IsSame(const JournalPage& one, const JournalPage& other) {
  return one.Body == other.Body &&
         std::bit_cast<std::uint64_t>(one.PageDate) == std::bit_cast<std::uint64_t>(other.PageDate);
}

}  // namespace

void Try(std::string_view input) {
  using store::JournalHealth;
  const std::string bytes = FileOf(input);
  Desk desk;
  desk.Write(Name, bytes);
  const std::int32_t peeked = PeekJournalPageCount(Name);
  const auto [pages, health, wholePages] = store::ReadJournalFile(Name);
  const auto add = [](std::size_t sum, const JournalPage& page) { return sum + page.Body.size(); };
  const std::size_t wholeBytes = SmallestPage * static_cast<std::size_t>(wholePages);
  Require(std::accumulate(pages.begin(), pages.end(), wholeBytes, add) <= input.size(),
          "pages come from bytes");
  const auto rows = static_cast<std::int32_t>(pages.size());
  Require(health != JournalHealth::Sound || (peeked == rows - 1 && wholePages == rows), "the count is so");
  desk.RequireFiles({{Name, bytes}}, "reading leaves the file alone");
  if (health == JournalHealth::Alien) {
    Require(pages.empty() && !Saves(std::vector<JournalPage>(2)), "an alien file is refused");
    desk.RequireFiles({{Name, bytes}}, "an alien file is left alone");
  } else if (pages.size() <= input.size() + MostBlankRows) {
    Require(Saves(pages), "a journal is saved");
    desk.RequireKept(Name, bytes, health == JournalHealth::Damaged);
    const store::DecodedJournal again = store::ReadJournalFile(Name);
    Require(again.health == JournalHealth::Sound, "what is saved is sound");
    Require(std::ranges::equal(again.pages, pages, IsSame), "the pages come back");
  }
}
