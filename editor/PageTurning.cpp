#include "editor/PageTurning.h"

#include <limits>
#include <string>

#include "editor/PageFace.h"
#include "editor/PagePasses.h"
#include "pictures/PictureSlots.h"
#include "platform/CodePage.h"
#include "platform/Dates.h"
#include "platform/Failure.h"
#include "platform/MessageBox.h"
#include "platform/SyncFolder.h"
#include "state/State.h"
#include "store/JournalFile.h"

namespace {

JournalEntry& OpenEntry() {
  return Journals.at(static_cast<std::size_t>(CurrentJournal));
}
JournalPage& Row(std::int32_t row) {
  return Pages.at(static_cast<std::size_t>(row));
}

void ShowPage(std::int32_t page) {
  CurrentPage = page;
  ShowCurrentPage();
  ShowPageHeader();
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
    CurrentPage = PageCount;
    StartNewPage();
  }
  ShowPageHeader();
}

std::string NotSaved(const std::string& fileName, const platform::Failure& failure) {
  return "The journal's file " + platform::FromCodePage(fileName).toStdString() + " could not be written.\n" +
         failure.what() + "\n\nNothing is lost: " + platform::FileAfter(failure) +
         ", and the journal stays open. When the cause is removed, close it once more, and it is saved.";
}

bool SaveOpenJournal() {
  const std::string& fileName = OpenEntry().FileName;
  try {
    SaveJournalFile(fileName);
    return true;
  } catch (const platform::Failure& failure) {
    platform::ShowMessage(NotSaved(fileName, failure));
    return false;
  }
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
  const JournalEntry& entry = OpenEntry();
  richtext::RichTextBox& text = *Face().txtM;
  text.SetSelStart(std::numeric_limits<int>::max());  // the very end
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
  TextPage = -1;
  text.SetTextRTF({});
  TextPage = CurrentPage;
  ApplyJournalFont();
  Row(PageCount).PageDate = platform::Now();
}

// At the first run no journal is open yet: the pages then belong to nobody, since row 0 is no journal.
void NewJournalPages() {
  PageCount = 1;
  CurrentPage = 0;
  Pages.resize(2);
  ApplyJournalFont();
  Row(0).PageDate = platform::Now();
  Row(1).PageDate = platform::Now();
  if (chkGotoLastPage == 1) CurrentPage = PageCount;
  PagesJournal = CurrentJournal;
  TextPage = CurrentPage;
  ShowPageHeader();
}

// Where no journal is open there is nothing to write, and the window must still be able to go.
void CloseJournal() {
  if (PagesJournal != 0 && !SaveOpenJournal()) return;
  PagesJournal = 0;
  Face().window()->hide();
  HidePagePictures();
  Q_EMIT Face().JournalClosed();
}
