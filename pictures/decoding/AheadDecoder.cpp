#include "pictures/decoding/AheadDecoder.h"

#include <exception>
#include <optional>
#include <sched.h>
#include <utility>

#include "platform/SignalsBlocked.h"

namespace pictures {
namespace {

// Where the system refuses, it runs as others do.
void RunWhenNothingElseDoes() {
  const sched_param none{};
  sched_setscheduler(0, SCHED_IDLE, &none);
}

std::optional<DecodedPicture> DecodedOrNone(const WantedPicture& wanted, const std::atomic<bool>& isDropped) {
  try {
    return Decode(wanted, &isDropped);
  } catch (const std::exception&) {
    return std::nullopt;  // told when its page is shown
  }
}

}  // namespace

AheadDecoder::AheadDecoder(Ready ready) : ready_(std::move(ready)) {
  const platform::SignalsBlocked blocked;
  thread_ = std::thread([this] { Run(); });
}

AheadDecoder::~AheadDecoder() {
  Drop();
  {
    const std::lock_guard lock(mutex_);
    isEnding_ = true;
  }
  wake_.notify_one();
  thread_.join();
}

void AheadDecoder::Decode(std::vector<WantedPicture> list) {
  {
    const std::lock_guard lock(mutex_);
    waiting_.assign(std::make_move_iterator(list.begin()), std::make_move_iterator(list.end()));
    waitingList_ = ++list_;
    isDropped_ = true;
  }
  wake_.notify_one();
}

void AheadDecoder::Run() {
  RunWhenNothingElseDoes();
  std::unique_lock lock(mutex_);
  for (;;) {
    wake_.wait(lock, [this] { return isEnding_ || !waiting_.empty(); });
    if (isEnding_) return;
    const WantedPicture wanted = std::move(waiting_.front());
    waiting_.pop_front();
    const std::uint64_t list = waitingList_;
    isDropped_ = false;
    lock.unlock();
    if (const auto decoded = DecodedOrNone(wanted, isDropped_)) GiveBack(list, wanted, *decoded);
    lock.lock();
  }
}

// A picture that was broken off is of a list that is dropped.
void AheadDecoder::GiveBack(std::uint64_t list, const WantedPicture& wanted, const DecodedPicture& decoded) {
  QMetaObject::invokeMethod(
      &window_,
      [this, list, wanted, decoded] {
        if (list == list_) ready_(wanted, decoded);
      },
      Qt::QueuedConnection);
}

}  // namespace pictures
