// A data file that a thread of its own replaces, while the window thread goes on.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <future>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include <QtCore/QObject>

#include "platform/files/ReplaceFile.h"

namespace platform {

// Belongs to the window thread, which alone makes it, calls it and ends it. There is never more than one file
// on its way. The thread takes the bytes and gives back what became of them; it knows no shared variable,
// takes no signals, and ends with its file.
class FileAside {
 public:
  // Bytes in pieces, which nobody changes any more, and that which holds them.
  struct Bytes {
    std::shared_ptr<const void> holder;
    std::span<const std::string_view> pieces;
  };
  // Called on the window thread, out of its event loop, when a file has come to its end that was not taken
  // yet. Not called any more once this is gone.
  using Ended = std::function<void()>;

  explicit FileAside(Ended ended) : ended_(std::move(ended)) {}
  // Waits for the file that is on its way.
  ~FileAside() = default;
  FileAside(const FileAside&) = delete;
  FileAside& operator=(const FileAside&) = delete;

  // Begins as ReplaceDataFile does, of which this is given the same after KeepChanged; nothing may be on its
  // way. Where the system has no thread left, the file is replaced at once.
  void Begin(const std::string& path, Bytes bytes);
  // Whether a file is on its way, or has come to its end and is not taken.
  bool IsBusy() const { return end_.valid(); }
  // Whether what is on its way has come to its end, within so long.
  bool Wait(std::chrono::milliseconds most) const;
  // Waits for the end, and makes the file known. False when another program has put a file there meanwhile
  // and nothing was done. Throws as ReplaceDataFile does.
  bool Take();

 private:
  void TellTheEnd(std::uint64_t number);

  const Ended ended_;
  std::string path_;
  std::uint64_t number_ = 0;   // of the file that was begun last
  QObject window_;             // what is queued to it goes with it
  std::future<Replaced> end_;  // its end waits, and so it goes first
};

}  // namespace platform
