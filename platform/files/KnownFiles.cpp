#include "platform/files/KnownFiles.h"

#include <map>
#include <utility>

#include "platform/files/InputFile.h"
#include "platform/files/LeftBehind.h"
#include "platform/files/Remembered.h"

namespace platform {
namespace {

struct KnownFile {
  Identity identity;
  std::optional<std::uint64_t> checksum;
};

std::map<std::string, KnownFile>& KnownFiles() {
  static std::map<std::string, KnownFile> files;
  return files;
}

// The copies that were made and not told of, by the paths of the files.
std::multimap<std::string, std::string>& Untold() {
  static std::multimap<std::string, std::string> copies;
  return copies;
}

bool IsTheSame(const KnownFile& one, const KnownFile& other) {
  return one.identity == other.identity || (one.checksum && one.checksum == other.checksum);
}

}  // namespace

void Remember(const std::string& path, const struct stat& entry, std::optional<std::uint64_t> checksum) {
  KnownFiles().insert_or_assign(path, KnownFile{IdentityOf(entry), checksum});
}

std::optional<Identity> KnownIdentity(const std::string& path) {
  const auto found = KnownFiles().find(path);
  return found == KnownFiles().end() ? std::nullopt : std::optional(found->second.identity);
}

bool IsAsKnown(const std::string& path) {
  struct stat entry {};
  const std::optional<Identity> known = KnownIdentity(path);
  return known && stat(path.c_str(), &entry) == 0 && IdentityOf(entry) == *known;
}

void AcceptUnread(const std::string& path) {
  struct stat entry {};
  if (stat(path.c_str(), &entry) == 0) Remember(path, entry, std::nullopt);
}

bool KeepChanged(const std::string& path) {
  struct stat entry {};
  if (stat(path.c_str(), &entry) != 0 || S_ISDIR(entry.st_mode)) return false;
  const auto found = KnownFiles().find(path);
  if (found != KnownFiles().end() && found->second.identity == IdentityOf(entry)) return false;
  const std::optional<KnownFile> before =
      found != KnownFiles().end() ? std::optional(found->second) : std::nullopt;
  InputFile file(path);
  const KnownFile now{IdentityOf(file.entry()), file.ChecksumToTheEnd()};
  const bool isChanged = !before || !IsTheSame(*before, now);
  if (isChanged) Untold().emplace(path, KeepBeside(path, ".other", 1));
  KnownFiles()[path] = now;
  return isChanged;
}

std::string TakeKept(const std::string& path) {
  const auto copy = Untold().extract(path);
  return copy.empty() ? std::string() : copy.mapped();
}

}  // namespace platform
