#include "platform/files/FileList.h"

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <memory>

#include <QtCore/QByteArray>

#include "platform/Errno.h"
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

}  // namespace

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

}  // namespace platform
