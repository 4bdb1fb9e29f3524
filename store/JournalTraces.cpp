#include "store/JournalTraces.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string_view>

#include "platform/Failure.h"
#include "platform/files/Files.h"
#include "platform/files/InputFile.h"
#include "platform/files/SyncFolder.h"
#include "state/State.h"
#include "store/JournalFile.h"
#include "store/UnstoredLog.h"

namespace store {
namespace {

namespace files = std::filesystem;

bool IsNumber(std::string_view text) {
  return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

// Whether a kept copy has this behind the file's name.
bool IsEndingOfCopy(std::string_view ending) {
  for (const std::string_view kind : {".damaged", ".other"}) {
    if (ending == kind) return true;
    if (ending.starts_with('.') && ending.ends_with(kind) && ending.size() > kind.size())
      return IsNumber(ending.substr(1, ending.size() - kind.size() - 1));
  }
  return false;
}

std::vector<std::string> CopiesOf(const files::path& path) {
  const std::string name = path.filename().string();
  std::vector<std::string> copies;
  std::error_code error;
  for (files::directory_iterator entry(path.parent_path(), error), end; entry != end;
       entry.increment(error)) {
    const std::string other = entry->path().filename().string();
    if (other.starts_with(name) && IsEndingOfCopy(std::string_view(other).substr(name.size())))
      copies.push_back(entry->path().string());
  }
  std::sort(copies.begin(), copies.end());
  return copies;
}

// Nothing when the file itself lies under its name, or the link leads to no file.
std::optional<std::string> TargetOf(const files::path& path) {
  std::error_code error;
  if (!files::is_symlink(path, error)) return std::nullopt;
  const files::path target = files::canonical(path, error);
  return files::is_regular_file(target, error) ? std::optional(target.string()) : std::nullopt;
}

bool IsJournalOfTheBookcase(const std::string& path) {
  return std::any_of(Journals.begin() + 1, Journals.end(), [&](const JournalEntry& entry) {
    std::error_code error;
    return entry.Deleted == False && files::equivalent(platform::PathOf(entry.FileName), path, error);
  });
}

// Why the file is still there; nothing when it is not.
std::optional<std::string> DeleteTrace(const std::string& path) {
  try {
    if (platform::IsMissing(path)) return std::nullopt;
    if (IsJournalOfTheBookcase(path)) return path + " (this is another journal of the bookcase, too)";
    if (!IsJournal(path)) return path + " (this is no journal)";
    platform::DeleteFile(path);
    platform::SyncFolderOf(path);
    return std::nullopt;
  } catch (const platform::NotYetOnDisk&) {
    return std::nullopt;  // it is gone as long as the machine runs
  } catch (const platform::Failure& failure) {
    return failure.what();
  }
}

// Nothing when the log has none of the journal's pages.
std::optional<std::string> WhatIsLogged(const std::string& path, const std::string& fileName) {
  try {
    const DecodedLog decoded = DecodeLog(platform::ReadFile(path));
    const auto isIts = [&](const UnstoredJournal& journal) { return journal.FileName == fileName; };
    if (std::ranges::any_of(decoded.log.journals, isIts)) return path + " (it has pages of the journal)";
    if (decoded.health == LogHealth::Sound) return std::nullopt;
    return path + " (it is damaged, and may have pages of the journal)";
  } catch (const platform::Failure& failure) {
    return failure.what();
  }
}

}  // namespace

std::vector<std::string> TracesOf(const std::string& fileName) {
  const std::string path = platform::PathOf(fileName);
  std::vector<std::string> traces = CopiesOf(path);
  if (const auto target = TargetOf(path)) traces.push_back(*target);
  return traces;
}

std::vector<std::string> DeleteTraces(const std::vector<std::string>& paths) {
  std::vector<std::string> left;
  for (const std::string& path : paths)
    if (const auto reason = DeleteTrace(path)) left.push_back(*reason);
  return left;
}

std::vector<std::string> LogsWith(const std::string& fileName) {
  std::vector<std::string> lines;
  for (const std::string& path : CopiesOf(platform::PathOf("journal.tql")))
    if (const auto line = WhatIsLogged(path, fileName)) lines.push_back(*line);
  return lines;
}

}  // namespace store
