// The thread that decodes the picture that is being added, so that no window waits for a large one.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <exception>
#include <functional>
#include <future>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <thread>

#include <QtCore/QObject>

#include "pictures/decoding/PictureFile.h"

namespace pictures {

struct Preview {
  QSize natural;         // pixels, upright
  DecodedPicture shown;  // its longer side up to 2000 pixels; or the small copy, some 160
  bool isWhole = true;   // false for a JPEG file that ends too soon
};

// Belongs to the window thread, which alone makes it, calls it and ends it. Each file has a thread, which
// takes the path as a value and gives a preview back as one; it knows no window and no shared variable, and
// takes no signals. One that is broken off goes on to where its format lets it end, and nobody waits for it
// meanwhile.
class PreviewDecoder {
 public:
  // Called on the window thread, out of its event loop, when there is something to take: the small copy that
  // the picture carries, if there is one, and the preview.
  explicit PreviewDecoder(std::function<void()> ready) : ready_(std::move(ready)) {}
  // Breaks off what is being decoded, and waits for all threads.
  ~PreviewDecoder();
  PreviewDecoder(const PreviewDecoder&) = delete;
  PreviewDecoder& operator=(const PreviewDecoder&) = delete;

  // In place of the file before, which is broken off. Where the system has no thread left, it is decoded now.
  void Decode(const std::string& path);
  // Waits for so long at most. Whether there is something to take.
  bool IsReadyWithin(std::chrono::milliseconds most) const;
  // Whether a preview was asked for that was neither taken nor dropped.
  bool IsAwaited() const { return preview_.valid(); }
  // The small copy, once, while the preview is awaited; none where the picture carries none, or when it is
  // not ready yet.
  std::optional<Preview> TakeSmallCopy();
  // The preview, once it is ready. Throws what the decoding has thrown.
  Preview Take() { return preview_.get(); }
  // Nobody wants it any more. Returns at once.
  void Drop();

 private:
  struct Attempt {
    std::atomic<bool> isDropped = false;
    std::atomic<bool> isOver = false;
    std::thread thread;
  };
  void ForgetThoseThatAreOver();
  void Tell(std::uint64_t number);  // on its own thread

  const std::function<void()> ready_;
  QObject window_;            // what is queued to it goes with it
  std::uint64_t number_ = 0;  // of the last file; the window thread's alone
  std::future<std::optional<Preview>> small_;
  std::future<Preview> preview_;
  std::list<Attempt> attempts_;  // at the last file, and at those before it that are not over
};

}  // namespace pictures
