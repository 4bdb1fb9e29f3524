#include "platform/files/Files.h"

#include <cerrno>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

#include "platform/CodePage.h"
#include "platform/Errno.h"

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

}  // namespace platform
