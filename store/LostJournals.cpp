#include "store/LostJournals.h"

#include <algorithm>
#include <string>
#include <unordered_set>

#include "platform/Failure.h"
#include "platform/files/FileList.h"
#include "platform/files/Files.h"
#include "state/State.h"
#include "store/JournalFile.h"

namespace {

std::int32_t PagesOf(std::string fileName) {
  try {
    return PeekJournalPageCount(fileName);
  } catch (const platform::Failure&) {
    return 0;  // told when somebody opens it
  }
}

JournalEntry Recovered(const std::string& fileName) {
  JournalEntry entry;
  entry.Name = "Recovered Lost Journal (" + fileName + ")";
  entry.PageCount = PagesOf(fileName);
  entry.FileName = fileName;
  entry.Icon = 1;
  entry.FontName = "Verdana";
  entry.FontSize = 16;
  entry.PaperColor = 0xFFFFFF;
  return entry;
}

bool IsBlank(const std::string& name) {
  return std::ranges::all_of(name, [](char letter) { return letter == ' '; });
}

}  // namespace

void RecoverLostJournals() {
  std::unordered_set<std::string> known;
  for (std::size_t row = 1; row < Journals.size(); ++row) known.insert(Journals[row].FileName);
  for (const std::string& fileName : platform::ListJournalFiles(platform::ProgramFolder())) {
    if (IsBlank(fileName) || known.contains(fileName)) continue;
    Journals.push_back(Recovered(fileName));
    JournalCount = static_cast<std::int32_t>(Journals.size()) - 1;
    if (JournalAdded) JournalAdded(JournalCount);
  }
}
