#include "pictures/decoding/PreviewDecoder.h"

#include <system_error>
#include <utility>

#include "pictures/decoding/SmallCopy.h"
#include "pictures/decoding/WholeJpeg.h"
#include "platform/Failure.h"
#include "platform/SignalsBlocked.h"

namespace pictures {
namespace {

Preview Made(const std::string& path, const std::atomic<bool>& isDropped) {
  const QSize natural = UprightSize(path);
  return {natural, LoadForPreview(path, &isDropped), IsWhole(path)};
}

template <class Value>
bool IsReady(const std::future<Value>& future, std::chrono::milliseconds most) {
  return future.wait_for(most) == std::future_status::ready;
}

using SmallTask = std::packaged_task<std::optional<Preview>()>;
using Task = std::packaged_task<Preview()>;

struct Work {
  SmallTask small;
  Task whole;
};

// What fails here fails once more with the picture, and is told then.
std::optional<Preview> SmallCopyOf(const std::string& path) {
  try {
    if (auto copy = LoadSmallCopy(path)) return Preview{UprightSize(path), *std::move(copy)};
  } catch (const platform::Failure&) {
  }
  return {};
}

}  // namespace

PreviewDecoder::~PreviewDecoder() {
  Drop();
  for (Attempt& attempt : attempts_) attempt.thread.join();
}

void PreviewDecoder::ForgetThoseThatAreOver() {
  attempts_.remove_if([](Attempt& attempt) {
    if (!attempt.isOver) return false;
    attempt.thread.join();
    return true;
  });
}

void PreviewDecoder::Decode(const std::string& path) {
  Drop();
  ForgetThoseThatAreOver();
  Attempt& attempt = attempts_.emplace_back();
  const auto work =
      std::make_shared<Work>(Work{SmallTask([path] { return SmallCopyOf(path); }),
                                  Task([path, &attempt] { return Made(path, attempt.isDropped); })});
  small_ = work->small.get_future();
  preview_ = work->whole.get_future();
  try {
    const platform::SignalsBlocked blocked;
    attempt.thread = std::thread([this, work, &attempt, number = number_] {
      work->small();
      Tell(number);
      work->whole();
      Tell(number);
      attempt.isOver = true;
    });
  } catch (const std::system_error&) {
    work->small();
    work->whole();
    attempts_.pop_back();
  }
}

bool PreviewDecoder::IsReadyWithin(std::chrono::milliseconds most) const {
  return IsReady(preview_, most);
}

std::optional<Preview> PreviewDecoder::TakeSmallCopy() {
  return small_.valid() && IsReady(small_, {}) ? small_.get() : std::nullopt;
}

void PreviewDecoder::Drop() {
  ++number_;
  if (!attempts_.empty()) attempts_.back().isDropped = true;
  small_ = {};
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
