// The thread that decodes pictures before anybody asks for them, when the processors have nothing else to do.
#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

#include <QtCore/QObject>

#include "pictures/decoding/PictureFile.h"

namespace pictures {

// Belongs to the window thread, which alone makes it, calls it and ends it. Its thread takes the list as a
// value and gives each picture back as one; it knows no window and no shared variable, takes no signals, and
// sleeps while there is nothing to do.
class AheadDecoder {
 public:
  // Called on the window thread, out of its event loop, with each picture of the last list that could be
  // decoded; never once Drop was called or the decoder is gone. What cannot be decoded is passed over.
  using Ready = std::function<void(const WantedPicture& wanted, const DecodedPicture& decoded)>;

  // Throws std::system_error when the system has no thread left.
  explicit AheadDecoder(Ready ready);
  // Breaks the picture off that is being decoded, and waits for the thread.
  ~AheadDecoder();
  AheadDecoder(const AheadDecoder&) = delete;
  AheadDecoder& operator=(const AheadDecoder&) = delete;

  // In place of the list before. Returns at once.
  void Decode(std::vector<WantedPicture> list);
  // Nobody wants the list any more. Returns at once; the picture that is being decoded is broken off.
  void Drop() { Decode({}); }

 private:
  void Run();  // on its own thread
  void GiveBack(std::uint64_t list, const WantedPicture& wanted, const DecodedPicture& decoded);

  const Ready ready_;
  QObject window_;                       // what is queued to it goes with it
  std::atomic<bool> isDropped_ = false;  // the picture in work
  std::uint64_t list_ = 0;               // the number of the last one; the window thread's alone

  std::mutex mutex_;  // guards what follows
  std::condition_variable wake_;
  std::deque<WantedPicture> waiting_;
  std::uint64_t waitingList_ = 0;
  bool isEnding_ = false;

  std::thread thread_;
};

}  // namespace pictures
