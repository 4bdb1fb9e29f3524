#include "platform/files/OutputFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "platform/Errno.h"

namespace platform {
namespace {

[[noreturn]] void Fail(const std::string& path) {
  throw FailureOf(errno, path, FailureKind::PathNotFound);
}

// Not blocking, so that a pipe in a file's place cannot hold the program up for ever.
int OpenForWriting(const std::string& path, int place) {
  const int descriptor = open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | O_NONBLOCK | place, 0666);
  if (descriptor >= 0) return descriptor;
  // Some file systems know fewer characters than others, and say so like this.
  if (errno == EINVAL) throw Failure(FailureKind::BadFileName, path);
  Fail(path);
}

// The system may take fewer bytes than it was given: carries `write` out until it has taken all.
template <class Write>
void WriteAll(const std::string& path, std::string_view bytes, Write&& write) {
  for (std::size_t done = 0; done < bytes.size();) {
    const ssize_t taken = write(bytes.substr(done), done);
    if (taken < 0 && errno != EINTR) Fail(path);
    if (taken > 0) done += static_cast<std::size_t>(taken);
  }
}

}  // namespace

void AppendToFile(const std::string& path, std::string_view bytes) {
  struct Opened {
    int descriptor;
    ~Opened() {
      if (descriptor >= 0) close(descriptor);
    }
  };
  Opened file{OpenForWriting(path, O_APPEND)};
  WriteAll(path, bytes, [&](std::string_view rest, std::size_t) {
    return write(file.descriptor, rest.data(), rest.size());
  });
  // A disk behind a network tells only now that it is full.
  if (close(std::exchange(file.descriptor, -1)) != 0 && errno != EINTR) Fail(path);
}

OutputFile::OutputFile(const std::string& path) : descriptor_(OpenForWriting(path, 0)), path_(path) {}

OutputFile::~OutputFile() {
  if (descriptor_ >= 0) close(descriptor_);
}

void OutputFile::WriteAt(std::uint64_t offset, std::string_view bytes) {
  WriteAll(path_, bytes, [&](std::string_view rest, std::size_t done) {
    return pwrite(descriptor_, rest.data(), rest.size(), static_cast<off_t>(offset + done));
  });
}

void OutputFile::Close() {
  if (descriptor_ >= 0 && close(std::exchange(descriptor_, -1)) != 0 && errno != EINTR) Fail(path_);
}

void MakeFolder(const std::string& path) {
  if (mkdir(path.c_str(), 0777) != 0) Fail(path);
}

}  // namespace platform
