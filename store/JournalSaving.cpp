#include "store/JournalSaving.h"

#include <memory>
#include <utility>

#include "platform/Failure.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/dialogs/TellKept.h"
#include "platform/files/FileAside.h"
#include "platform/files/Files.h"
#include "platform/files/KnownFiles.h"
#include "platform/files/SyncFolder.h"
#include "state/PageInHand.h"
#include "state/State.h"
#include "store/JournalFile.h"
#include "store/JournalPieces.h"
#include "store/UnstoredRows.h"

namespace store {
namespace {

// The open journal as it was when it was to be saved.
struct Image {
  explicit Image(std::string name) : fileName(std::move(name)) {}

  std::string fileName;
  std::vector<JournalPage> rows = Pages;
  JournalPieces file{rows, MasterPassword};
};
using SharedImage = std::shared_ptr<const Image>;

struct Saving {
  std::function<void()> ended;
  SharedImage written;    // what the thread has
  SharedImage next;       // what it gets then
  SharedImage uncertain;  // what the disk has not confirmed that it keeps
  platform::FileAside file{[this] { ended(); }};
};

Saving& TheSaving() {
  static Saving saving;
  return saving;
}

bool IsOpen(const std::string& fileName) {
  const auto row = static_cast<std::size_t>(PagesJournal);
  return PagesJournal > 0 && row < Journals.size() && Journals[row].FileName == fileName && PageCount >= 0 &&
         Pages.size() == static_cast<std::size_t>(PageCount) + 1;
}

void BeginSave(const std::string& fileName) {
  if (MasterPassword.empty()) platform::ShowMessage("password is null on save!");
  if (!IsOpen(fileName)) throw platform::Failure(platform::FailureKind::SubscriptOutOfRange, fileName);
  PageInHand::SaveBegins();
}

void EndSave(const std::string& fileName) {
  PageInHand::PagesSaved();
  TheSaving().uncertain = nullptr;
  if (SomethingWasStored) SomethingWasStored();
  TellKeptJournal(fileName);
}

// Waits for the thread. Whether the file is there as it was given; then its rows are stored.
bool TakeFile() {
  Saving& saving = TheSaving();
  const SharedImage written = std::exchange(saving.written, nullptr);
  try {
    if (!saving.file.Take()) return false;
  } catch (const platform::NotYetOnDisk&) {
    saving.uncertain = written;
    throw;
  }
  if (IsOpen(written->fileName)) RowsAreStoredAs(written->rows);
  return true;
}

// For who saves what is newer: how the older one ended is of no account.
void DropWhatIsOnItsWay() {
  TheSaving().next = nullptr;
  try {
    if (IsSaving()) TakeFile();
  } catch (const platform::Failure&) {
  }
}

void SaveNow(const std::string& fileName, const JournalPieces& file) {
  DropWhatIsOnItsWay();
  if (FileWillBeWritten) FileWillBeWritten(DataFile::AJournal);
  WritePieces(fileName, file);
  RowsAreStored();
  EndSave(fileName);
}

void BeginNext() {
  Saving& saving = TheSaving();
  const SharedImage next = std::exchange(saving.next, nullptr);
  const std::string path = platform::PathOf(next->fileName);
  KeepWhatIsThere(next->fileName);
  platform::KeepChanged(path);  // a second name that it has got is a change of its entry
  saving.file.Begin(path, {next, next->file.pieces()});
  saving.written = next;
}

// From here on the log tells that the file may come to hold this.
bool IsLogged(const SharedImage& image) {
  TheSaving().next = image;
  const bool isLogged = BookcaseLoaded && LogThrough && LogThrough();
  if (!isLogged) TheSaving().next = nullptr;
  return isLogged;
}

bool IsReady(const SharedImage& image, Until until) {
  if (image->file.size() < LongFile) return false;
  if (until == Until::Logged) return IsLogged(image);
  TheSaving().next = image;
  if (FileWillBeWritten) FileWillBeWritten(DataFile::AJournal);
  return true;
}

}  // namespace

void BeginSavingJournalFile(const std::string& fileName, Until until, std::function<void()> ended) {
  BeginSave(fileName);
  const auto image = std::make_shared<const Image>(fileName);
  if (!IsReady(image, until)) return SaveNow(fileName, image->file);
  TheSaving().ended = std::move(ended);
  if (!IsSaving()) BeginNext();
}

bool IsFileAsSaved(const std::string& fileName) {
  return IsOpen(fileName) && !PagesUnsaved && UnstoredRows().empty() &&
         platform::IsAsKnown(platform::PathOf(fileName));
}

bool IsSaving() {
  return TheSaving().file.IsBusy();
}

bool WaitForSaving(std::chrono::milliseconds most) {
  return TheSaving().file.Wait(most);
}

void TakeSaved() {
  if (!IsSaving()) return;
  Saving& saving = TheSaving();
  const SharedImage written = saving.written;
  try {
    if (!TakeFile() && !saving.next) saving.next = written;  // once more, when the other's file is kept
  } catch (const platform::Failure&) {
    if (!saving.next) throw;
  }
  if (saving.next) return BeginNext();
  if (PagesUnsaved && IsOpen(written->fileName)) EndSave(written->fileName);
}

std::vector<RowOnItsWay> RowsOnTheirWay(std::int32_t row) {
  const auto at = static_cast<std::size_t>(row);
  std::vector<RowOnItsWay> rows;
  for (const SharedImage& image : {TheSaving().uncertain, TheSaving().written, TheSaving().next})
    if (image && IsOpen(image->fileName) && at < image->rows.size())
      rows.push_back({CheckOf(image->rows[at].Body), image->rows[at].PageDate});
  return rows;
}

}  // namespace store

void SaveJournalFile(const std::string& fileName) {
  store::BeginSave(fileName);
  store::SaveNow(fileName, store::JournalPieces(Pages, MasterPassword));
}
