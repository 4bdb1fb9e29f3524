#include "platform/files/FileList.h"

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <memory>
#include <optional>

#include <QtCore/QFile>

#include "platform/CodePage.h"
#include "platform/Errno.h"
#include "platform/files/FileNames.h"
#include "platform/files/Files.h"

namespace platform {
namespace {

bool EndsIn(std::string_view name, std::string_view ending) {
  return name.size() >= ending.size() &&
         qstrnicmp(name.data() + name.size() - ending.size(), ending.data(), ending.size()) == 0;
}

bool Matches(std::string_view name, const std::vector<std::string_view>& endings) {
  return name.front() != '.' && std::any_of(endings.begin(), endings.end(),
                                            [name](std::string_view ending) { return EndsIn(name, ending); });
}

// Bytes that no name decodes to could never be found again by the decoded name.
std::optional<std::string> InCodePage(const std::string& name) {
  const QString decoded = QFile::decodeName(name.c_str());
  return QFile::encodeName(decoded) == name.c_str() ? ToCodePage(decoded) : std::nullopt;
}

}  // namespace

std::vector<std::string> NamesIn(const std::string& folder) {
  std::vector<std::string> names;
  const std::unique_ptr<DIR, int (*)(DIR*)> listing(opendir(folder.c_str()), closedir);
  if (!listing) return names;
  while (const dirent* entry = readdir(listing.get())) names.emplace_back(entry->d_name);
  return names;
}

std::vector<std::string> ListFiles(const std::string& folder, const std::vector<std::string_view>& endings) {
  const std::unique_ptr<DIR, int (*)(DIR*)> listing(opendir(folder.c_str()), closedir);
  if (!listing) throw FailureOf(errno, folder, FailureKind::PathNotFound);
  std::vector<std::string> names;
  while (const dirent* entry = readdir(listing.get())) {
    const std::string name = entry->d_name;
    if (Matches(name, endings) && FileExists(folder + "/" + name)) names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

JournalFiles ListJournalFiles(const std::string& folder) {
  JournalFiles journals;
  for (const std::string& name : NamesIn(folder)) {
    if (!Matches(name, {".tqf"}) || !FileExists(folder + "/" + name)) continue;
    const auto inCodePage = InCodePage(name);
    inCodePage ? journals.names.push_back(*inCodePage) : journals.foreign.push_back(name);
  }
  std::sort(journals.names.begin(), journals.names.end());
  std::sort(journals.foreign.begin(), journals.foreign.end());
  return journals;
}

}  // namespace platform
