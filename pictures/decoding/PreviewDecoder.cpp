#include "pictures/decoding/PreviewDecoder.h"

#include <system_error>
#include <utility>

#include "pictures/decoding/PictureFile.h"
#include "pictures/decoding/WholeJpeg.h"
#include "platform/SignalsBlocked.h"

namespace pictures {
namespace {

Preview Made(const std::string& path, const std::atomic<bool>& isDropped) {
  const QSize natural = UprightSize(path);
  return {natural, LoadForPreview(path, &isDropped), IsWhole(path)};
}

}  // namespace

PreviewDecoder::~PreviewDecoder() {
  Drop();
  if (thread_.joinable()) thread_.join();
}

void PreviewDecoder::Decode(const std::string& path) {
  Drop();
  if (thread_.joinable()) thread_.join();  // it has been broken off
  isDropped_ = false;
  std::packaged_task<Preview()> decoding([this, path] { return Made(path, isDropped_); });
  preview_ = decoding.get_future();
  const auto run = std::make_shared<std::packaged_task<Preview()>>(std::move(decoding));
  try {
    const platform::SignalsBlocked blocked;
    thread_ = std::thread([this, run, number = number_] {
      (*run)();
      Tell(number);
    });
  } catch (const std::system_error&) {
    (*run)();
  }
}

bool PreviewDecoder::IsReadyWithin(std::chrono::milliseconds most) const {
  return preview_.wait_for(most) == std::future_status::ready;
}

void PreviewDecoder::Drop() {
  ++number_;
  isDropped_ = true;
  preview_ = {};
}

void PreviewDecoder::Tell(std::uint64_t number) {
  QMetaObject::invokeMethod(
      &window_,
      [this, number] {
        if (number == number_ && IsAwaited()) ready_();
      },
      Qt::QueuedConnection);
}

}  // namespace pictures
