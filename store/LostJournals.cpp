#include "store/LostJournals.h"

#include <algorithm>
#include <string>
#include <unordered_set>

#include "platform/CodePage.h"
#include "platform/Failure.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/files/FileList.h"
#include "platform/files/Files.h"
#include "state/State.h"
#include "store/BookcaseIndex.h"
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

constexpr std::size_t MostTold = 20;

std::string WhyForeign(const QString& name) {
  const QString letter = platform::FirstForeignCharacter(name);
  if (letter == QChar::ReplacementCharacter) return "bytes that are no letters";
  return letter.toStdString();
}

std::vector<std::string> LeftOut() {
  const platform::JournalFiles files = platform::ListJournalFiles(platform::ProgramFolder());
  std::vector<std::string> lines;
  for (const std::string& bytes : files.foreign) {
    const QString name = QString::fromStdString(bytes);
    lines.push_back(name.toStdString() + " (in its name: " + WhyForeign(name) + ")");
  }
  for (const std::string& name : files.names)
    if (store::IsAbsurdFileName(name))
      lines.push_back(platform::FromCodePage(name).toStdString() + " (in its name: \\)");
  return lines;
}

}  // namespace

void RecoverLostJournals() {
  std::unordered_set<std::string> known;
  for (std::size_t row = 1; row < Journals.size(); ++row) known.insert(Journals[row].FileName);
  for (const std::string& fileName : platform::ListJournalFiles(platform::ProgramFolder()).names) {
    if (IsBlank(fileName) || store::IsAbsurdFileName(fileName) || known.contains(fileName)) continue;
    Journals.push_back(Recovered(fileName));
    JournalCount = static_cast<std::int32_t>(Journals.size()) - 1;
    if (JournalAdded) JournalAdded(JournalCount);
  }
}

void TellLeftOutJournals() {
  const std::vector<std::string> lines = LeftOut();
  if (lines.empty()) return;
  std::string text =
      "These files in the folder of the program may be journals, but the bookcase cannot keep their names:\n";
  for (std::size_t i = 0; i < std::min(lines.size(), MostTold); ++i) text += "\n" + lines[i];
  if (lines.size() > MostTold) text += "\nand " + std::to_string(lines.size() - MostTold) + " more";
  platform::ShowMessage(text +
                        "\n\nThey are as they were. To read them, leave Thornquill, give them names of plain "
                        "letters and digits, such as found.tqf, and start it again: they come back as "
                        "recovered journals.");
}
