// A long pass over a page, during which the windows stay alive but take no commands.
#pragma once

#include <chrono>
#include <functional>

namespace look {

// For the life of this object user input waits: what is typed and clicked is delivered after the command, in
// order. Passes may nest.
class Pass {
 public:
  Pass();
  ~Pass();
  Pass(const Pass&) = delete;
  Pass& operator=(const Pass&) = delete;

  // Serves the event loop when about a frame has passed since it was served last; cheap otherwise.
  void Yield();

  // While one lives, passes serve no events: the display is gone, and the toolkit would end the process at
  // its next look at it.
  class Stillness {
   public:
    Stillness();
    ~Stillness();
    Stillness(const Stillness&) = delete;
    Stillness& operator=(const Stillness&) = delete;
  };

  static bool InProgress();
  // Runs the action from the event loop once no pass is in progress.
  static void RunAfterwards(std::function<void()> action);

 private:
  std::chrono::steady_clock::time_point lastServed_;
};

}  // namespace look
