#include "editor/UnstoredPages.h"

#include <algorithm>
#include <map>
#include <utility>

#include "editor/AlienPage.h"
#include "editor/PageFace.h"
#include "editor/PagePasses.h"
#include "richtext/box/RichTextBox.h"
#include "richtext/document/Document.h"
#include "richtext/rtf/Writer.h"
#include "state/State.h"
#include "store/JournalSaving.h"
#include "store/RollForward.h"
#include "store/UnstoredRows.h"

namespace {

std::vector<store::UnstoredJournal>& LeftBehind() {
  static std::vector<store::UnstoredJournal> journals;
  return journals;
}

// A deleted journal takes what was left behind of it along.
bool IsInTheBookcase(const std::string& fileName) {
  return std::any_of(Journals.begin() + 1, Journals.end(), [&](const JournalEntry& entry) {
    return entry.FileName == fileName && entry.Deleted == False;
  });
}

// A page on which the first word is being composed has not changed yet.
bool HasText() {
  const bool isComposing =
      PagesJournal != 0 && TextPage >= 0 && !ShowsAlienPage() && Face().txtM->IsComposing();
  return isComposing || IsTextUnstored();
}

UnstoredText TextOnShow() {
  return {TextPage, PageShift, Face().txtM->Copy(), store::NextFiller()};
}

store::UnstoredPage Logged(std::int32_t row, const store::RowInFile& inFile, bool hasText) {
  const JournalPage& page = Pages.at(static_cast<std::size_t>(row));
  store::UnstoredPage logged{row, !inFile.isThere, inFile.body, inFile.PageDate, page.PageDate, {}};
  logged.orBegan = store::RowsOnTheirWay(row);
  if (hasText && row == TextPage) return logged;
  const store::FileCheck body = store::CheckOf(page.Body);
  const auto isOther = [&](const store::RowOnItsWay& onItsWay) { return onItsWay.body != body; };
  if (body != inFile.body || std::ranges::any_of(logged.orBegan, isOther)) logged.Body = page.Body;
  return logged;
}

// The page on show comes without a body, which is made of its text.
store::UnstoredJournal OpenJournal(bool hasText) {
  std::map<std::int32_t, store::RowInFile> rows = store::UnstoredRows();
  if (hasText) rows.try_emplace(TextPage, store::AsInFile(Pages.at(static_cast<std::size_t>(TextPage))));
  store::UnstoredJournal journal{Journals.at(static_cast<std::size_t>(PagesJournal)).FileName, {}};
  for (const auto& [row, inFile] : rows) journal.pages.push_back(Logged(row, inFile, hasText));
  return journal;
}

}  // namespace

std::string UnstoredText::Body() const {
  const std::string text = richtext::WriteRtf(richtext::Join(parts));
  std::string body(text.size() * 2, '\0');
  store::EncipherAside(text, shift, filler, body.data());
  return body;
}

bool UnstoredPages::operator==(const UnstoredPages& other) const {
  const auto isSame = [](const UnstoredText& one, const UnstoredText& two) {
    return one.row == two.row && one.shift == two.shift && one.parts == two.parts;
  };
  const bool isSameText = text && other.text ? isSame(*text, *other.text) : !text && !other.text;
  return isSameText && journals == other.journals;
}

UnstoredPages PagesUnstored() {
  std::erase_if(LeftBehind(), [](const auto& journal) { return !IsInTheBookcase(journal.FileName); });
  UnstoredPages pages{LeftBehind(), {}};
  const bool hasText = HasText();
  if (hasText || IsAnythingUnstored()) pages.journals.push_back(OpenJournal(hasText));
  if (hasText) pages.text = TextOnShow();
  return pages;
}

bool CopyUnstoredText(const QDeadlineTimer& until) {
  return !HasText() || Face().txtM->CopyUntil(until);
}

std::vector<store::UnstoredJournal> WithText(UnstoredPages pages) {
  if (!pages.text) return std::move(pages.journals);
  const auto isIts = [&](const store::UnstoredPage& page) { return page.row == pages.text->row; };
  std::ranges::find_if(pages.journals.back().pages, isIts)->Body = pages.text->Body();
  return std::move(pages.journals);
}

void LeavePagesBehind() {
  if (IsAnythingUnstored()) LeftBehind().push_back(WithText(PagesUnstored()).back());
}

void ForgetPagesLeftBehind() {
  LeftBehind().clear();
}

// The file may have been replaced meanwhile: what no longer fits its row becomes a page of its own.
bool TakePagesBack(const std::string& fileName) {
  const auto isIts = [&](const store::UnstoredJournal& journal) { return journal.FileName == fileName; };
  const auto journal = std::ranges::find_if(LeftBehind(), isIts);
  if (journal == LeftBehind().end()) return false;
  const std::vector<JournalPage> read = Pages;
  for (const store::RolledPage& page : store::RollForward(journal->pages, PageShift, Pages)) {
    const auto row = static_cast<std::size_t>(page.row);
    if (row >= read.size())
      store::RowWasAdded(page.row);
    else if (page.how == store::Rolled::IntoItsRow)
      store::RowHasChanged(page.row, read[row]);
  }
  LeftBehind().erase(journal);
  PageCount = static_cast<std::int32_t>(Pages.size()) - 1;
  return true;
}
