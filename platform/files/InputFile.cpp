#include "platform/files/InputFile.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/Errno.h"
#include "platform/files/Remembered.h"

namespace platform {
namespace {

// Not blocking, so that a pipe in a file's place cannot hold the program up for ever.
int OpenForReading(const std::string& path) {
  const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (descriptor < 0) throw FailureOf(errno, path, FailureKind::FileNotFound);
  return descriptor;
}

std::string AllOf(InputFile& file, const std::string& path, std::uint64_t most) {
  if (file.size() > most) throw Failure(FailureKind::OutOfMemory, path);
  std::string bytes(file.size(), '\0');
  bytes.resize(file.Read(bytes.data(), bytes.size()));
  return bytes;
}

}  // namespace

InputFile::InputFile(const std::string& path) : descriptor_(OpenForReading(path)), path_(path) {
  if (fstat(descriptor_, &entry_) != 0 || !S_ISREG(entry_.st_mode)) {
    close(descriptor_);
    throw Failure(FailureKind::PathAccess, path);
  }
}

InputFile::~InputFile() {
  close(descriptor_);
}

std::size_t InputFile::Read(char* buffer, std::size_t size) {
  std::size_t done = 0;
  while (done < size) {
    const ssize_t got = read(descriptor_, buffer + done, size - done);
    if (got == 0) break;
    if (got < 0 && errno != EINTR) throw Failure(FailureKind::DeviceError, path_);
    if (got > 0) done += static_cast<std::size_t>(got);
  }
  checksum_.Add({buffer, done});
  return done;
}

std::size_t InputFile::ReadAt(std::uint64_t offset, char* buffer, std::size_t size) {
  std::size_t done = 0;
  while (done < size) {
    const ssize_t got = pread(descriptor_, buffer + done, size - done, static_cast<off_t>(offset + done));
    if (got == 0) break;
    if (got < 0 && errno != EINTR) throw Failure(FailureKind::DeviceError, path_);
    if (got > 0) done += static_cast<std::size_t>(got);
  }
  return done;
}

std::uint64_t InputFile::ChecksumToTheEnd() {
  std::array<char, std::size_t{64} * 1024> rest;
  while (Read(rest.data(), rest.size()) == rest.size()) {
  }
  return checksum_.value();
}

void InputFile::Remember() {
  const std::uint64_t checksum = ChecksumToTheEnd();
  platform::Remember(path_, entry_, checksum);
}

std::string ReadFile(const std::string& path, std::uint64_t most) {
  InputFile file(path);
  return AllOf(file, path, most);
}

std::string ReadDataFile(const std::string& path, std::uint64_t most) {
  InputFile file(path);
  std::string bytes = AllOf(file, path, most);
  file.Remember();
  return bytes;
}

}  // namespace platform
