#include "pictures/decoding/DecodeAll.h"

#include <algorithm>
#include <atomic>
#include <system_error>
#include <thread>
#include <utility>

#include "platform/SignalsBlocked.h"

namespace pictures {
namespace {

// Each may need the memory of a whole picture of the largest size, and a page seldom has more photographs.
constexpr std::size_t MostAtOnce = 4;

Outcome OutcomeOf(const WantedPicture& wanted) {
  try {
    return {Decode(wanted), nullptr};
  } catch (...) {
    return {{}, std::current_exception()};
  }
}

class Decoding {
 public:
  explicit Decoding(const std::vector<WantedPicture>& wanted) : wanted_(wanted), outcomes_(wanted.size()) {}

  void TakeOneAfterAnother() {
    for (std::size_t next; (next = next_++) < wanted_.size();) outcomes_[next] = OutcomeOf(wanted_[next]);
  }

  std::vector<Outcome> Outcomes() { return std::move(outcomes_); }

 private:
  const std::vector<WantedPicture>& wanted_;
  std::vector<Outcome> outcomes_;  // each written by the one thread that has taken its number
  std::atomic<std::size_t> next_ = 0;
};

// Fewer, or none, where the system has no thread left.
std::vector<std::thread> MakeThreads(std::size_t count, Decoding& decoding) {
  std::vector<std::thread> threads;
  const platform::SignalsBlocked blocked;
  try {
    while (threads.size() < count) threads.emplace_back([&decoding] { decoding.TakeOneAfterAnother(); });
  } catch (const std::system_error&) {
  }
  return threads;
}

}  // namespace

std::vector<Outcome> DecodeAll(const std::vector<WantedPicture>& wanted) {
  Decoding decoding(wanted);
  const std::size_t processors = std::max(1U, std::thread::hardware_concurrency());
  const std::size_t atOnce = std::min({processors, wanted.size(), MostAtOnce});
  std::vector<std::thread> threads = MakeThreads(atOnce > 0 ? atOnce - 1 : 0, decoding);
  decoding.TakeOneAfterAnother();
  for (std::thread& thread : threads) thread.join();
  return decoding.Outcomes();
}

}  // namespace pictures
