#include "platform/files/LogWriter.h"

#include <exception>
#include <utility>

#include "platform/SignalsBlocked.h"
#include "platform/files/Files.h"
#include "platform/files/ReplaceFile.h"
#include "platform/files/SyncFolder.h"

namespace platform {
namespace {

void Write(const std::string& path, const std::string& bytes) {
  if (!bytes.empty()) return ReplaceFile(path, bytes);
  DeleteFile(path);
  SyncFolderOf(path);
}

// None when the bytes are on the disk.
std::optional<std::string> FailureOfWriting(const std::string& path, const LogWriter::Maker& bytes) {
  try {
    Write(path, bytes());
    return std::nullopt;
  } catch (const std::exception& failure) {
    return failure.what();
  }
}

}  // namespace

LogWriter::LogWriter(std::string path, Told told, std::chrono::milliseconds retryAfter)
    : path_(std::move(path)), told_(std::move(told)), retryAfter_(retryAfter) {
  const SignalsBlocked blocked;  // the thread begins with them so
  thread_ = std::thread([this] { Run(); });
}

LogWriter::~LogWriter() {
  {
    const std::lock_guard lock(mutex_);
    isEnding_ = true;
  }
  wake_.notify_one();
  thread_.join();
}

void LogWriter::Put(std::string bytes) {
  Put([kept = std::move(bytes)] { return kept; });
}

void LogWriter::Put(Maker bytes) {
  {
    const std::lock_guard lock(mutex_);
    bytes_ = std::move(bytes);
    ++puts_;
    isAsked_ = true;
  }
  wake_.notify_one();
}

bool LogWriter::Wait() {
  std::unique_lock lock(mutex_);
  if (written_ != puts_) isAsked_ = isAsked_ || !isWriting_;
  wake_.notify_one();
  tried_.wait(lock, [this] { return !isAsked_ && !isWriting_; });
  return written_ == puts_;
}

bool LogWriter::IsUpToDate() const {
  const std::lock_guard lock(mutex_);
  return written_ == puts_;
}

void LogWriter::Run() {
  std::unique_lock lock(mutex_);
  for (;;) {
    const auto hasWork = [this] { return isAsked_ || isEnding_; };
    if (written_ == puts_)
      wake_.wait(lock, hasWork);
    else
      wake_.wait_for(lock, retryAfter_, hasWork);
    if (isEnding_ && !isAsked_) return;
    Try(lock);
  }
}

// The lock is not held while the disk works.
void LogWriter::Try(std::unique_lock<std::mutex>& lock) {
  const std::uint64_t number = puts_;
  Maker bytes = std::move(bytes_);
  isAsked_ = false;
  isWriting_ = true;
  lock.unlock();
  const std::optional<std::string> failure = FailureOfWriting(path_, bytes);
  lock.lock();
  isWriting_ = false;
  if (!failure) written_ = number;
  if (failure && number == puts_) bytes_ = std::move(bytes);  // for the next trial
  if (failure.has_value() != std::exchange(hasFailed_, failure.has_value())) Tell(failure);
  tried_.notify_all();
}

void LogWriter::Tell(const std::optional<std::string>& failure) {
  QMetaObject::invokeMethod(
      &window_, [this, failure] { told_(failure); }, Qt::QueuedConnection);
}

}  // namespace platform
