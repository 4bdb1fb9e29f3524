#include "store/PageNames.h"

#include <algorithm>

#include "platform/CodePage.h"
#include "state/State.h"

namespace store {

std::string TitleOf(const std::string& fileName) {
  const auto isIts = [&](const JournalEntry& entry) { return entry.FileName == fileName; };
  const auto entry = std::find_if(Journals.begin() + 1, Journals.end(), isIts);
  return platform::FromCodePage(entry == Journals.end() ? fileName : entry->Name).toStdString();
}

std::string PageName(std::int32_t row) {
  return row == 0 ? "the title page" : "page " + std::to_string(row);
}

std::string PageNames(const std::set<std::int32_t>& rows) {
  constexpr std::size_t most = 10;
  std::string text;
  std::size_t named = 0;
  for (const std::int32_t row : rows) {
    if (named++ == most) return text + " and " + std::to_string(rows.size() - most) + " more";
    if (!text.empty()) text += ", ";
    text += PageName(row);
  }
  return text;
}

}  // namespace store
