#include "editor/OpenJournal.h"

#include <optional>
#include <utility>

#include "editor/PageFace.h"
#include "editor/PagePasses.h"
#include "editor/PageTurning.h"
#include "editor/SavingPages.h"
#include "editor/UnstoredPages.h"
#include "pictures/PictureSlots.h"
#include "platform/CodePage.h"
#include "platform/Failure.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/files/Files.h"
#include "richtext/box/RichTextBox.h"
#include "state/PageInHand.h"
#include "store/JournalFile.h"
#include "store/UnstoredRows.h"

namespace {

// A journal may still be here that was opened without being shown. Its text and its pictures must not meet
// the next one's pages.
void DropFormerJournal() {
  AwaitSaving();
  LeavePagesBehind();
  ForgetPagePictures();
  Face().txtM->setReadOnly(false);
  PageInHand::TextLeaves();
  Face().txtM->SetTextRTF({});  // an empty box too may remember, for its undo, what stood in it
  PageInHand::PagesForgotten();
  store::RowsAreStored();
}

QString Shown(const std::string& fileName) {
  return platform::FromCodePage(fileName);
}

void TellUnreadable(const std::string& fileName, const platform::Failure& failure) {
  const QString text = QStringLiteral("The journal's file %1 could not be read.\n%2");
  platform::ShowMessage(text.arg(Shown(fileName), QString::fromUtf8(failure.what())).toStdString());
}

std::optional<store::DecodedJournal> Read(const std::string& fileName) {
  try {
    return store::ReadJournalFile(fileName);
  } catch (const platform::Failure& failure) {
    TellUnreadable(fileName, failure);
    return std::nullopt;
  }
}

// Takes the pages in, or leaves no journal open.
bool TakePages(const std::string& fileName) {
  std::optional<store::DecodedJournal> journal = Read(fileName);
  if (!journal) return false;
  if (journal->health == store::JournalHealth::Alien) {
    platform::ShowMessage("Journal load -- file unknown or corrupt!");
    return false;
  }
  if (journal->health == store::JournalHealth::Damaged) TellDamagedJournal(fileName, journal->wholePages);
  Pages = std::move(journal->pages);
  PageInHand::PagesRead();
  store::RowsAreStored();
  PageCount = static_cast<std::int32_t>(Pages.size()) - 1;
  TakePagesBack(fileName);
  return true;
}

// The header comes before the page here, and what it gives the caret outlasts the coming of the text.
void ShowFirstPage() {
  PageInHand::TurnedTo(chkGotoLastPage == 1 ? PageCount : 0);
  ShowPageHeader();
  ShowCurrentPage();
  GiveCaretJournalFont();
}

}  // namespace

void TellDamagedJournal(const std::string& fileName, std::int32_t wholePages) {
  const QString text = QStringLiteral(
      "The journal's file %1 is damaged. Pages in it that are whole, the title page counted: %2.\n\n"
      "The journal opens with these. The damaged file is kept beside it before it is written over.");
  platform::ShowMessage(text.arg(Shown(fileName)).arg(wholePages).toStdString());
}

void LoadJournalFile(std::string& fileName) {
  WithFallbackName(fileName);
  DropFormerJournal();
  if (platform::IsMissing(platform::PathOf(fileName))) {
    NewJournalPages();
    if (TakePagesBack(fileName)) ShowFirstPage();
    return;
  }
  if (!TakePages(fileName)) return;
  Journals.at(static_cast<std::size_t>(CurrentJournal)).PageCount = PageCount;
  ShowFirstPage();
}
