#include "editor/SavingPages.h"

#include <stdexcept>
#include <string>

#include "look/Pass.h"
#include "look/frmWait.h"
#include "platform/Failure.h"
#include "platform/dialogs/ReportFailure.h"
#include "platform/files/SyncFolder.h"
#include "state/State.h"
#include "store/JournalSaving.h"
#include "store/UnstoredRows.h"

namespace {

// So long a window may stand still before it says why.
constexpr std::chrono::milliseconds LongWait{1000};
constexpr std::chrono::milliseconds Glance{10};
constexpr std::chrono::hours AnyTime{24};

// What cannot be written of it is told only where a person has written something.
template <class Save>
bool IsSavedOrToldWhyNot(Save&& save) {
  try {
    save();
    return true;
  } catch (const platform::Failure& failure) {
    if (!store::AreRowsMissed()) return false;
    throw std::runtime_error(
        std::string(failure.what()) + "\n\nNothing is lost: the page stays in the open journal, and " +
        platform::FileAfter(failure) +
        ". When the cause is removed, the next page that you change saves it too, or closing the journal "
        "does.");
  }
}

void TakeOrTell() {
  platform::Guarded("Page Encryption Error:", [] { IsSavedOrToldWhyNot(&store::TakeSaved); });
}

void TakeWhatHasEnded() {
  if (store::IsSaving() && store::WaitForSaving({})) TakeOrTell();
}

void WhenItHasEnded() {
  look::Pass::RunAfterwards(&TakeWhatHasEnded);
}

// Where no event may be served, no window comes, and the wait is all the same.
void WaitWithAWindow() {
  if (store::WaitForSaving(LongWait)) return;
  look::frmWait& wait = look::The<look::frmWait>();
  wait.ProgressBar1->setRange(0, 0);  // nobody knows how long a disk takes
  wait.lblInfo->setText(QStringLiteral("Writing the journal's file"));
  wait.ShowSoon();
  look::Pass().Await(AnyTime, [] { return store::WaitForSaving(Glance); });
  store::WaitForSaving(AnyTime);
  wait.HideNow();
}

}  // namespace

bool SaveOpenJournal() {
  return IsSavedOrToldWhyNot([] {
    const JournalEntry& entry = Journals.at(static_cast<std::size_t>(CurrentJournal));
    store::BeginSavingJournalFile(entry.FileName, store::Until::Logged, &WhenItHasEnded);
  });
}

void AwaitSaving() {
  while (store::IsSaving()) {
    WaitWithAWindow();
    TakeOrTell();
  }
}

void SaveAtTheEnd(const std::string& fileName, bool isJustSaved) {
  AwaitSaving();
  if (isJustSaved && store::IsFileAsSaved(fileName)) return;
  store::BeginSavingJournalFile(fileName, store::Until::Begun, &WhenItHasEnded);
  while (store::IsSaving()) {
    WaitWithAWindow();
    store::TakeSaved();
  }
  if (PagesUnsaved) throw platform::Failure(platform::FailureKind::PathAccess, fileName);
}
