#include "editor/PageTurning.h"

#include <limits>
#include <set>
#include <string>

#include "editor/PageFace.h"
#include "editor/PagePasses.h"
#include "editor/SavingPages.h"
#include "editor/UnstoredPages.h"
#include "look/Spoken.h"
#include "pictures/PictureSlots.h"
#include "platform/CodePage.h"
#include "platform/Dates.h"
#include "platform/Failure.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/files/SyncFolder.h"
#include "richtext/box/RichTextBox.h"
#include "state/PageInHand.h"
#include "store/PageNames.h"
#include "store/UnstoredRows.h"

namespace {

JournalEntry& OpenEntry() {
  return Journals.at(static_cast<std::size_t>(CurrentJournal));
}
JournalPage& Row(std::int32_t row) {
  return Pages.at(static_cast<std::size_t>(row));
}

void ShowPage(std::int32_t page) {
  PageInHand::TurnedTo(page);
  ShowCurrentPage();
  ShowPageHeader();
  // The text box itself is called by its page.
  if (Face().isVisible() && !Face().txtM->hasFocus()) look::Announce(Face().txtM->accessibleName());
}

bool WantsNewPage(std::int32_t number) {
  const std::string text = "Add (new) page " + std::to_string(number) + "?";
  return platform::ShowMessage({text, platform::Buttons::YesNo, platform::BoxIcon::Question}) !=
         platform::Answer::No;
}

// CurrentPage moves only once the answer is there: while the question stands, the text box still holds the
// page before, which must find its row if the program has to end.
void AskAndAddPage() {
  if (WantsNewPage(PageCount + 1)) {
    HidePagePictures();
    Pages.resize(Pages.size() + 1);
    ++PageCount;
    store::RowWasAdded(PageCount);
    PageInHand::TurnedTo(PageCount);
    StartNewPage();
  }
  ShowPageHeader();
}

std::string NotSaved(const platform::Failure& failure) {
  return "The journal's file " + platform::FromCodePage(OpenEntry().FileName).toStdString() +
         " could not be written.\n" + failure.what();
}

std::string UnstoredPages() {
  std::set<std::int32_t> rows;
  for (const auto& [row, inFile] : store::UnstoredRows())
    if (inFile.isMissed) rows.insert(row);
  if (IsTextUnstored()) rows.insert(TextPage);
  return store::PageNames(rows);
}

bool AsksToCloseWithout(const platform::Failure& failure) {
  const bool isLogged = LogThrough && LogThrough();
  const std::string text =
      NotSaved(failure) + "\n\nWhat you wrote on these pages is not in the file: " + UnstoredPages() +
      ".\n\n" +
      (isLogged ? "It is kept in the log journal.tql, and is there again when you open the "
                  "journal the next time. Close it now?"
                : "Close the journal without it, so that it is lost?");
  return platform::ShowMessage({.text = text,
                                .buttons = platform::Buttons::YesNo,
                                .icon = platform::BoxIcon::Stop,
                                .prefersNo = true}) == platform::Answer::Yes;
}

bool wasRefused = false;  // the closing of the open journal, since its file could not be written

// What nobody wrote is not missed, and a closing that comes again may be meant.
bool MayCloseWithout(const platform::Failure& failure) {
  if (!IsAnythingUnstored()) return true;
  if (wasRefused) {
    if (!AsksToCloseWithout(failure)) return false;
    LeavePagesBehind();
    return true;
  }
  wasRefused = true;
  platform::ShowMessage(NotSaved(failure) + "\n\nNothing is lost: " + platform::FileAfter(failure) +
                        ", and the journal stays open. When the cause is removed, close it once more, and it "
                        "is saved.");
  return false;
}

bool MayClose(bool isJustSaved) {
  try {
    SaveAtTheEnd(OpenEntry().FileName, isJustSaved);
  } catch (const platform::Failure& failure) {
    if (!MayCloseWithout(failure)) return false;
  }
  wasRefused = false;
  return true;
}

}  // namespace

void GoFirstPage() {
  ShowPage(0);
}

void GoLastPage() {
  ShowPage(PageCount);
}

void GoBackPage() {
  if (CurrentPage > 0) ShowPage(CurrentPage - 1);
}

void GoNextPage() {
  if (CurrentPage < PageCount)
    ShowPage(CurrentPage + 1);
  else
    AskAndAddPage();
}

void AddNewPage() {
  AskAndAddPage();
}

void ShowPageHeader() {
  if (CurrentPage == 0)
    Face().SetHeader(QString(), QStringLiteral("Title Page"));
  else
    Face().SetHeader(platform::LongDate(Row(CurrentPage).PageDate),
                     QStringLiteral("Page %1").arg(CurrentPage));
  ApplyJournalFont();
}

void ApplyJournalFont() {
  Face().txtM->SetSelStart(std::numeric_limits<int>::max());  // the very end
  GiveCaretJournalFont();
}

void GiveCaretJournalFont() {
  const JournalEntry& entry = OpenEntry();
  richtext::RichTextBox& text = *Face().txtM;
  text.SetSelFontName(platform::FromCodePage(entry.FontName));
  text.SetSelFontSize(entry.FontSize);
  text.SetSelBold(entry.FontBold != False);
  text.SetSelUnderline(entry.FontUnderline != False);
  text.SetSelStrikeThru(entry.FontStrikethru != False);
  text.SetSelItalic(entry.FontItalic != False);
  text.SetSelColor(entry.FontColor);
}

void StartNewPage() {
  richtext::RichTextBox& text = *Face().txtM;
  text.setFocus();
  PageInHand::TextLeaves();
  text.setReadOnly(false);
  text.SetTextRTF({});
  PageInHand::TextIsIn();
  ApplyJournalFont();
  Row(PageCount).PageDate = platform::Now();
}

// At the first run no journal is open yet: the pages then belong to nobody, since row 0 is no journal.
void NewJournalPages() {
  PageCount = 1;
  Pages.resize(2);
  store::RowsAreStored();
  for (std::int32_t row = 0; row <= PageCount; ++row) store::RowWasAdded(row, false);
  ApplyJournalFont();
  Row(0).PageDate = platform::Now();
  Row(1).PageDate = platform::Now();
  PageInHand::PagesRead();
  if (chkGotoLastPage == 1) PageInHand::TurnedTo(PageCount);
  PageInHand::TextIsIn();
  ShowPageHeader();
}

// Where no journal is open there is nothing to write, and the window must still be able to go.
void CloseJournal(bool isJustSaved) {
  if (PagesJournal != 0 && !MayClose(isJustSaved)) return;
  PageInHand::JournalClosed();
  Face().window()->hide();
  HidePagePictures();
  Q_EMIT Face().JournalClosed();
}
