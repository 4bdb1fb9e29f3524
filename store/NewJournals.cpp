#include "store/NewJournals.h"

#include <filesystem>
#include <string_view>
#include <sys/stat.h>
#include <system_error>
#include <unordered_set>

#include "platform/Failure.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/files/Files.h"
#include "platform/files/SyncFolder.h"
#include "state/State.h"
#include "store/Scrambler.h"

namespace {

using platform::Failure;
using platform::FailureKind;

constexpr int fileNumbers = 100'000;

// A folder takes a name as well as a file does: no journal could be saved under it.
bool IsTakenOnDisk(const std::string& name) {
  std::error_code ignored;
  return std::filesystem::exists(std::filesystem::symlink_status(platform::PathOf(name), ignored));
}

// Gathered once, so that a long bookcase is not searched again for each number.
std::unordered_set<std::string_view> NamesOfRows() {
  std::unordered_set<std::string_view> names;
  for (std::size_t row = 1; row < Journals.size(); ++row) names.insert(Journals[row].FileName);
  return names;
}

std::string NumberedName(int number) {
  std::string name = std::to_string(fileNumbers + number);  // a one and the five digits
  name.front() = 'j';
  name += ".tqf";
  return name;
}

void RefuseUnusable(const std::string& password) {
  if (password.empty() || password.size() > MaxPasswordLength) {
    throw Failure(FailureKind::InvalidArgument, "a password has 1 to 128 characters");
  }
}

// A second name of a file is an entry of its own, and can go; some disks take one name for another.
bool IsSameEntry(const std::string& one, const std::string& other) {
  if (one == other) return true;
  struct stat first {
  }, second{}, behind{};
  if (lstat(one.c_str(), &first) != 0 || lstat(other.c_str(), &second) != 0) return false;
  if (stat(other.c_str(), &behind) != 0 || first.st_dev != behind.st_dev || first.st_ino != behind.st_ino)
    return false;
  return first.st_nlink == 1 || S_ISLNK(second.st_mode);  // of two second names, the other one stays
}

}  // namespace

std::string FindFreeJournalFile() {
  const auto taken = NamesOfRows();
  for (int number = 0; number < fileNumbers; ++number) {
    std::string name = NumberedName(number);
    if (!taken.contains(name) && !IsTakenOnDisk(name)) return name;
  }
  platform::ShowMessage("Error, unable to find free journal file name.");
  return {};
}

void AddJournalEntry(const std::string& name) {
  JournalEntry entry;
  entry.FileName = FindFreeJournalFile();
  entry.Name = name;
  entry.PageCount = 1;
  entry.Icon = 1;
  entry.PaperColor = 0xFFFFFF;
  entry.FontName = "Verdana";
  entry.FontSize = 16;
  Journals.back() = entry;
  if (JournalAdded) JournalAdded(JournalCount);
}

bool IsPasswordTooLong(const std::string& password) {
  if (password.size() <= MaxPasswordLength) return false;
  platform::ShowMessage("The password has " + std::to_string(password.size()) +
                            " characters. It can have at most " + std::to_string(MaxPasswordLength) + ".",
                        platform::BoxIcon::Stop);
  return true;
}

void MakeFirstJournal(const std::string& name, const std::string& password) {
  RefuseUnusable(password);
  JournalCount = 1;
  Journals.assign(2, {});
  AddJournalEntry(name);
  MasterPassword = ScrambleText(password);
  PageShift = static_cast<unsigned char>(password.back());
  BookcaseLoaded = true;
}

void MakeJournal(const std::string& name) {
  ++JournalCount;
  Journals.resize(static_cast<std::size_t>(JournalCount) + 1);
  AddJournalEntry(name);
}

bool IsFileShared(std::int32_t row) {
  const auto index = static_cast<std::size_t>(row);
  const std::string path = platform::PathOf(Journals.at(index).FileName);
  for (std::size_t other = 1; other < Journals.size(); ++other)
    if (other != index && Journals[other].Deleted == False &&
        IsSameEntry(path, platform::PathOf(Journals[other].FileName)))
      return true;
  return false;
}

void RemoveJournal(std::int32_t row) {
  if (row < 1 || row > JournalCount) throw Failure(FailureKind::SubscriptOutOfRange);
  JournalEntry& entry = Journals.at(static_cast<std::size_t>(row));
  const std::string path = platform::PathOf(entry.FileName);
  const bool hasFile = platform::FileExists(path) && !IsFileShared(row);
  if (hasFile) platform::DeleteFile(path);
  entry.Deleted = True;
  if (hasFile) platform::SyncFolderOf(path);
}
