#include "platform/files/FileAside.h"

#include <system_error>
#include <utility>

#include "platform/SignalsBlocked.h"

namespace platform {

void FileAside::Begin(const std::string& path, Bytes bytes) {
  path_ = path;
  ++number_;
  const auto replace = [this, path, number = number_, expected = ExpectedAt(path),
                        written = std::move(bytes)] {
    Replaced replaced = ReplaceAside(path, written.pieces, expected);
    TellTheEnd(number);
    return replaced;
  };
  try {
    const SignalsBlocked blocked;  // the thread begins with them so
    end_ = std::async(std::launch::async, replace);
  } catch (const std::system_error&) {
    std::packaged_task<Replaced()> now(replace);
    end_ = now.get_future();
    now();
  }
}

// On the file's own thread, which is all but over.
void FileAside::TellTheEnd(std::uint64_t number) {
  const auto tell = [this, number] {
    if (!IsBusy() || number != number_) return;
    end_.wait();
    ended_();
  };
  QMetaObject::invokeMethod(&window_, tell, Qt::QueuedConnection);
}

bool FileAside::Wait(std::chrono::milliseconds most) const {
  return !IsBusy() || end_.wait_for(most) == std::future_status::ready;
}

bool FileAside::Take() {
  const Replaced replaced = end_.get();
  TakeReplaced(path_, replaced);
  return !replaced.isChanged;
}

}  // namespace platform
