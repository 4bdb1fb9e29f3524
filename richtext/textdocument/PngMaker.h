// A large bitmap on its way to a PNG file.
//
// That takes some tenths of a second a megapixel, and a person goes on writing meanwhile. So a thread of its
// own makes it: it takes the image, which nobody changes any more, and gives the bytes of a file. Who needs
// them before they are there, as a page that is stored, waits. When nobody wants them any more the thread is
// told to stop, and waited for. It takes no signals.
#pragma once

#include <atomic>
#include <future>
#include <string>

#include <QtGui/QImage>

namespace richtext {

class PngMaker {
 public:
  // Where the system has no thread left, the file is made at once.
  explicit PngMaker(const QImage& image);
  ~PngMaker() { stop_ = true; }
  PngMaker(const PngMaker&) = delete;
  PngMaker& operator=(const PngMaker&) = delete;

  bool IsDone() const;
  const std::string& Bytes() const { return made_.get(); }

 private:
  std::atomic<bool> stop_ = false;
  std::shared_future<std::string> made_;  // goes first, and waits for the thread
};

}  // namespace richtext
