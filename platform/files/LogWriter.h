// The thread that keeps one small file up to date, so that the window thread never waits for the disk.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

#include <QtCore/QObject>

namespace platform {

// Belongs to the window thread, which alone makes it, calls it and ends it. What it is given is a value of
// its own from then on; its thread reads nothing else of the program, and calls nothing of it but what makes
// the bytes, ReplaceFile and DeleteFile. That thread sleeps while there is nothing to write, and takes no
// signals.
class LogWriter {
 public:
  // Called on the window thread, out of its event loop: with the failure's text (platform::Failure's
  // sentence) when a write failed, and with none when one succeeded again. A failure is told once, however
  // often it comes back before a write succeeds. Not called any more once the writer is gone.
  using Told = std::function<void(std::optional<std::string> failure)>;

  // `path` is a file of the program's folder. `retryAfter` is how long what failed waits until it is tried
  // again by itself. Nothing is touched before the first Put. Throws std::system_error when the system has no
  // thread left.
  LogWriter(std::string path, Told told, std::chrono::milliseconds retryAfter = std::chrono::seconds(5));
  // Ends when what was put last was written or has failed; one failure more is not told.
  ~LogWriter();
  LogWriter(const LogWriter&) = delete;
  LogWriter& operator=(const LogWriter&) = delete;

  // What makes the file's bytes, on the writer's thread: out of values of its own and nothing else of the
  // program. It is asked again when the writing is tried again. What it throws is a failure to write.
  using Maker = std::function<std::string()>;

  // The file is to hold these bytes, or to be gone when there are none. Returns at once; what was put before
  // and is not being written yet is never written. What fails is tried again with the next Put, and by
  // itself after a while.
  void Put(Maker bytes);
  void Put(std::string bytes);

  // Waits until what was put last is on the disk, or a trial of it has failed; what has failed before is
  // tried once more. Returns whether the disk has it. For the ways out: the process ends without ending its
  // threads.
  bool Wait();

  // Whether the disk has what was put last. True before the first Put.
  bool IsUpToDate() const;

 private:
  // On the writer's own thread:
  void Run();
  void Try(std::unique_lock<std::mutex>& lock);
  void Tell(const std::optional<std::string>& failure);

  const std::string path_;
  const Told told_;
  const std::chrono::milliseconds retryAfter_;
  QObject window_;  // what is queued to it goes with it

  mutable std::mutex mutex_;  // guards what follows
  std::condition_variable wake_;
  std::condition_variable tried_;
  Maker bytes_;  // put last; moved away while they are written
  std::uint64_t puts_ = 0;
  std::uint64_t written_ = 0;  // the number of the last Put that the disk has
  bool isAsked_ = false;       // for a trial at once
  bool isWriting_ = false;
  bool hasFailed_ = false;  // and was told
  bool isEnding_ = false;

  std::thread thread_;
};

}  // namespace platform
