#include "editor/UnstoredPages.h"

#include <algorithm>
#include <map>
#include <optional>
#include <tuple>

#include "editor/PageFace.h"
#include "editor/PagePasses.h"
#include "state/State.h"
#include "store/PageCipher.h"
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

// The text of the page on show, enciphered; made anew only when it has changed.
const std::string& TextBody() {
  using Key = std::tuple<std::int32_t, std::int32_t, const QTextDocument*, int>;
  static Key made;
  static std::string body;
  const QTextDocument* document = Face().txtM->document();
  const Key key(PagesJournal, TextPage, document, document->revision());
  if (key == made && !body.empty()) return body;
  const std::string text = Face().txtM->TextRTF();
  body.resize(text.size() * 2);
  store::EncipherAside(text, PageShift, body.data());
  made = key;
  return body;
}

store::UnstoredPage Logged(std::int32_t row, const store::RowInFile& inFile) {
  const JournalPage& page = Pages.at(static_cast<std::size_t>(row));
  store::UnstoredPage logged{row, !inFile.isThere, inFile.body, inFile.PageDate, page.PageDate, {}};
  if (store::CheckOf(page.Body) != inFile.body) logged.Body = page.Body;
  return logged;
}

store::RowInFile AsStored(const JournalPage& page) {
  return {true, store::CheckOf(page.Body), page.PageDate, true};
}

store::UnstoredJournal OpenJournal() {
  std::map<std::int32_t, store::RowInFile> rows = store::UnstoredRows();
  const bool hasText = IsTextUnstored();
  if (hasText) rows.try_emplace(TextPage, AsStored(Pages.at(static_cast<std::size_t>(TextPage))));
  store::UnstoredJournal journal{Journals.at(static_cast<std::size_t>(PagesJournal)).FileName, {}};
  for (const auto& [row, inFile] : rows) journal.pages.push_back(Logged(row, inFile));
  const auto isShown = [](const store::UnstoredPage& page) { return page.row == TextPage; };
  if (hasText) std::ranges::find_if(journal.pages, isShown)->Body = TextBody();
  return journal;
}

}  // namespace

std::vector<store::UnstoredJournal> UnstoredJournals() {
  std::erase_if(LeftBehind(), [](const auto& journal) { return !IsInTheBookcase(journal.FileName); });
  std::vector<store::UnstoredJournal> journals = LeftBehind();
  if (IsAnythingUnstored()) journals.push_back(OpenJournal());
  return journals;
}

void LeavePagesBehind() {
  if (IsAnythingUnstored()) LeftBehind().push_back(OpenJournal());
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
