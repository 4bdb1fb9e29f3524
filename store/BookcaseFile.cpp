#include "store/BookcaseFile.h"

#include <cstdint>
#include <exception>
#include <string>
#include <utility>
#include <vector>

#include "platform/Process.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/dialogs/TellKept.h"
#include "platform/files/Files.h"
#include "platform/files/InputFile.h"
#include "platform/files/KeptFiles.h"
#include "platform/files/KnownFiles.h"
#include "platform/files/ReplaceFile.h"
#include "state/State.h"
#include "store/BookcaseIndex.h"
#include "store/Scrambler.h"

namespace {

// Far more than a hundred thousand journals need; a larger file is none of ours.
constexpr std::uint64_t largestIndex = 256u << 20;

// The bookcase as the file holds it, by which a save that cannot be made is known to matter or not.
struct Bookcase {
  std::vector<JournalEntry> journals;
  std::string masterPassword;

  bool operator==(const Bookcase&) const = default;
};
Bookcase loaded;
std::optional<store::FileCheck> loadedFile;

// Without the counts of pages as last seen, which each opening finds again.
Bookcase Present() {
  Bookcase bookcase{Journals, MasterPassword};
  for (JournalEntry& entry : bookcase.journals) entry.PageCount = 0;
  return bookcase;
}

// Whether the file on disk holds more than what was read from it.
bool fileIsDamaged = false;

std::string IndexPath() {
  return platform::PathOf("journal.tqt");
}

std::string NameOf(const std::string& path) {
  return path.substr(path.rfind('/') + 1);
}

void GiveUp(const std::string& reason) {
  platform::ShowMessage(
      reason +
      "\n\nThe bookcase cannot be opened without this file, so Thornquill ends now. Nothing "
      "was changed. Put back a sound copy of journal.tqt and start again.");
  platform::EndProcess();
}

void TellDamage(const std::string& problem) {
  platform::ShowMessage(
      "The file journal.tqt is damaged (" + problem + "): " + std::to_string(JournalCount) +
      (JournalCount == 1 ? " journal" : " journals") +
      " could be read from it. Journals that are missing come back under their file names as "
      "long as their files are there.\n\nThe damaged file is kept as " +
      NameOf(platform::DamagedCopyOf(IndexPath())) + " before it is written over.");
}

void AddRow(JournalEntry entry) {
  entry.Name = UnscrambleText(entry.Name);
  Journals.push_back(std::move(entry));
  ++JournalCount;
  if (JournalAdded) JournalAdded(JournalCount);
}

void TakeOver(store::BookcaseIndex index) {
  Journals.assign(1, {});
  JournalCount = 0;
  MasterPassword = std::move(index.masterPassword);
  PageShift = index.pageShift;
  for (JournalEntry& entry : index.journals) AddRow(std::move(entry));
}

void LoadFrom(const std::string& path) {
  const std::string bytes = platform::ReadDataFile(path, largestIndex);
  store::DecodedBookcaseIndex decoded = store::DecodeBookcaseIndex(bytes);
  if (decoded.health == store::BookcaseIndexHealth::Headless) {
    return GiveUp("The file journal.tqt is damaged at its start (" + decoded.problem + "): " + path);
  }
  fileIsDamaged = decoded.health == store::BookcaseIndexHealth::Damaged;
  TakeOver(std::move(decoded.index));
  BookcaseLoaded = true;
  loaded = fileIsDamaged ? Bookcase{} : Present();  // a damaged file is to be mended
  loadedFile = store::CheckOf(bytes);
  if (fileIsDamaged) TellDamage(decoded.problem);
}

// The bookcase as the file holds it: without removed rows, and with scrambled copies of the names.
store::BookcaseIndex IndexToSave(std::string (*scramble)(std::string_view) = &ScrambleText) {
  store::BookcaseIndex index{MasterPassword, PageShift, {}};
  for (std::size_t row = 1; row < Journals.size(); ++row) {
    if (Journals[row].Deleted != False) continue;
    index.journals.push_back(Journals[row]);
    index.journals.back().Name = scramble(Journals[row].Name);
  }
  return index;
}

void LeaveNamesScrambled(store::BookcaseIndex index) {
  auto saved = index.journals.begin();
  for (std::size_t row = 1; row < Journals.size(); ++row) {
    if (Journals[row].Deleted == False) Journals[row].Name = std::move((saved++)->Name);
  }
}

void KeepDamagedFile(const std::string& path) {
  const bool isChanged = platform::KeepChanged(path);
  if (fileIsDamaged && !isChanged && platform::FileExists(path)) platform::KeepDamaged(path);
  fileIsDamaged = false;  // one copy, even when the writing has to be tried again
}

void Write(const store::BookcaseIndex& index) {
  const std::string path = IndexPath();
  const std::string bytes = store::EncodeBookcaseIndex(index);
  if (FileWillBeWritten) FileWillBeWritten(DataFile::TheIndex);
  KeepDamagedFile(path);
  platform::ReplaceDataFile(path, bytes);
  loaded = Present();
  loadedFile = store::CheckOf(bytes);
  platform::TellKept(path);
}

}  // namespace

void LoadJournalIndex() {
  const std::string path = IndexPath();
  fileIsDamaged = false;
  loadedFile.reset();
  if (platform::IsMissing(path)) return;
  try {
    LoadFrom(path);
  } catch (const std::exception& failure) {
    GiveUp(std::string("The file journal.tqt cannot be read. ") + failure.what());
  }
}

void SaveJournalIndex() {
  store::BookcaseIndex index = IndexToSave();
  Write(index);
  LeaveNamesScrambled(std::move(index));
  loaded = Present();
}

void WriteJournalIndex() {
  Write(IndexToSave());
}

bool IsBookcaseUnsaved() {
  return BookcaseLoaded && Present() != loaded;
}

std::optional<store::UnstoredFile> UnstoredBookcaseIndex() {
  static Bookcase made;
  static std::string bytes;
  Bookcase present = Present();
  if (!BookcaseLoaded || present == loaded) return std::nullopt;
  if (bytes.empty() || made != present) {
    bytes = store::EncodeBookcaseIndex(IndexToSave(&ScrambleTextAside));
    made = std::move(present);
  }
  return store::UnstoredFile{platform::IsMissing(IndexPath()) ? std::nullopt : loadedFile, bytes};
}

bool IsSameBookcase(const std::string& one, const std::string& other) {
  store::DecodedBookcaseIndex first = store::DecodeBookcaseIndex(one);
  store::DecodedBookcaseIndex second = store::DecodeBookcaseIndex(other);
  const auto isSound = [](const auto& decoded) {
    return decoded.health == store::BookcaseIndexHealth::Sound;
  };
  for (store::DecodedBookcaseIndex* decoded : {&first, &second})
    for (JournalEntry& entry : decoded->index.journals) {
      entry.Name = UnscrambleText(entry.Name);
      entry.PageCount = 0;
    }
  return isSound(first) && isSound(second) && first.index.journals == second.index.journals &&
         first.index.pageShift == second.index.pageShift &&
         first.index.masterPassword == second.index.masterPassword;
}
