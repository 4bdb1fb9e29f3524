#include "platform/files/Files.h"

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <filesystem>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

#include "platform/CodePage.h"
#include "platform/Errno.h"
#include "platform/files/FileNames.h"

namespace platform {
namespace {

// The system's own bytes of the folder. The toolkit would decode them and could lose some.
std::string BinaryFolder() {
  std::error_code error;
  const std::filesystem::path binary = std::filesystem::read_symlink("/proc/self/exe", error);
  if (error) return QFile::encodeName(QCoreApplication::applicationDirPath()).toStdString();
  return binary.parent_path().string();
}

std::string& FolderInItsPlace() {
  static std::string folder;
  return folder;
}

bool SameLetters(std::string_view text, std::string_view lowerCase) {
  return text.size() == lowerCase.size() && qstrnicmp(text.data(), lowerCase.data(), lowerCase.size()) == 0;
}

// True for a name that matches "*.tqf" and is not hidden. The pattern comes from systems that do not tell
// capitals from small letters, and so do diaries copied from there.
bool IsJournalFileName(std::string_view name) {
  constexpr std::string_view ending = ".tqf";
  return name.size() >= ending.size() && name.front() != '.' &&
         SameLetters(name.substr(name.size() - ending.size()), ending);
}

}  // namespace

std::string ProgramFolder() {
  static const std::string real = BinaryFolder();
  return FolderInItsPlace().empty() ? real : FolderInItsPlace();
}

void SetProgramFolder(std::string folder) {
  FolderInItsPlace() = std::move(folder);
}

std::string PathOf(std::string_view name) {
  return ProgramFolder() + "/" + QFile::encodeName(FromCodePage(name)).toStdString();
}

bool FileExists(const std::string& path) {
  struct stat entry {};
  return stat(path.c_str(), &entry) == 0 && !S_ISDIR(entry.st_mode);
}

bool IsMissing(const std::string& path) {
  struct stat entry {};
  return stat(path.c_str(), &entry) != 0 && errno == ENOENT;
}

void DeleteFile(const std::string& path) {
  if (unlink(path.c_str()) != 0 && errno != ENOENT) throw FailureOf(errno, path, FailureKind::PathNotFound);
}

std::vector<std::string> NamesIn(const std::string& folder) {
  std::vector<std::string> names;
  const std::unique_ptr<DIR, int (*)(DIR*)> listing(opendir(folder.c_str()), closedir);
  if (!listing) return names;
  while (const dirent* entry = readdir(listing.get())) names.emplace_back(entry->d_name);
  return names;
}

std::vector<std::string> ListJournalFiles(const std::string& folder) {
  std::vector<std::string> journals;
  for (const std::string& name : NamesIn(folder)) {
    if (!IsJournalFileName(name) || !FileExists(folder + "/" + name)) continue;
    const QString decoded = QFile::decodeName(name.c_str());
    const auto inCodePage = ToCodePage(decoded);
    // Bytes that no name decodes to could never be found again by the decoded name.
    if (inCodePage && QFile::encodeName(decoded) == name.c_str()) journals.push_back(*inCodePage);
  }
  std::sort(journals.begin(), journals.end());
  return journals;
}

}  // namespace platform
