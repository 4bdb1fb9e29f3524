// A long pass over a page, during which the windows stay alive but take no commands.
//
// Who may run events, and when. The window thread runs them in three places and in no fourth:
//
//   the program's own loop, and that of a dialog, menu or message box that waits for a person: all is served
//   Yield and Await of a pass, as below; a routine that serves events is in a pass
//   the handing over to a running instance, before there is a window
//
// A pass serves what the windows need to stay alive: painting, timers, what the window system tells. It keeps
// back what could start a command in the middle of one, to the end of the outermost pass:
//
//   keys, clicks and the wheel   left in the window system's queue
//   an input method's text       kept by the serving, and delivered in order by RunAfterwards
//   the closing of a window      Form asks InProgress, and closes by RunAfterwards
//   the way out from outside     app/WaysOut, alike; a failure of the log's worker is told alike
//
// What waits runs from the next loop that is in no pass, and not in the destructor: by then the whole command
// has come to its end. It may serve events more than once on its way, each time in a pass, of which the
// second keeps back what the first one left waiting.
//
// One window may be let through: that of look/Progress, which cancels what the pass does. While it is up,
// nothing waits in the queue: it takes the keys, and what is meant for another window is lost, as before any
// modal dialog.
//
// A box that opens in a pass has a loop of its own, and can be answered; yet what waits goes on waiting
// behind it, and of a box over a page half shown nobody knows what it speaks of. So a pass of one page
// (editor/PagePasses) ends before its failure is told, and a message that can wait is not told in a pass at
// all.
//
// No pass serves events in an event that a pass serves.
#pragma once

#include <chrono>
#include <functional>

class QWidget;

namespace look {

// For the life of this object what is kept back waits. Passes may nest.
class Pass {
 public:
  Pass();
  ~Pass();
  Pass(const Pass&) = delete;
  Pass& operator=(const Pass&) = delete;

  // Serves the event loop when about a frame has passed since it was served last; cheap otherwise.
  void Yield();
  // Serves the event loop, once at least, until that is so, or for so long at most.
  void Await(std::chrono::milliseconds most, const std::function<bool()>& isSo);

  // While one lives, passes serve no events: the display is gone, and the toolkit would end the process at
  // its next look at it.
  class Stillness {
   public:
    Stillness();
    ~Stillness();
    Stillness(const Stillness&) = delete;
    Stillness& operator=(const Stillness&) = delete;
  };

  // From now on passes serve this window with all its input; null for none.
  static void LetThrough(QWidget* window);

  static bool InProgress();
  // Runs the action from the event loop once no pass is in progress.
  static void RunAfterwards(std::function<void()> action);

 private:
  // False, and nothing is served, in an event that a pass serves, or in a stillness.
  bool Serve();

  std::chrono::steady_clock::time_point lastServed_;
};

}  // namespace look
