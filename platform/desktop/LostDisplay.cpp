// The end of a program whose display has gone.
//
// The toolkit tells of a broken connection to the display in a warning and ends the process with its next
// statement; there is no other word of it. So the warning is listened for, and whoever gives it is not let go
// before everything is saved. X11 warns on the window thread. Wayland warns there and on a thread of the
// toolkit's own, within a millisecond of each other and in any order, and either would end the process in the
// middle of the other one's save.
//
// So the save is a turn that is taken once. The window thread takes it when it gives the warning itself, or
// when it hears from the thread that did; that one waits. Only when the window thread has not come within
// its time (it may hang in a call to the display that no longer answers) the waiting thread takes the turn;
// then it is the window thread that waits, if it still comes.
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <list>
#include <mutex>
#include <thread>
#include <utility>

#include <QtCore/QCoreApplication>
#include <QtCore/QMetaObject>
#include <QtCore/QString>
#include <QtCore/QThread>

#include "platform/desktop/WayOut.h"
#include "platform/files/Writing.h"

namespace platform {
namespace {

// How many times as long as for its beginning the end of a save is waited for.
constexpr int LongestSave = 12;

class SavingTurn {
 public:
  // True for the one thread that is to save; for good.
  bool Take() {
    const std::lock_guard lock(mutex_);
    return !std::exchange(taken_, true);
  }
  void End() {
    {
      const std::lock_guard lock(mutex_);
      ended_ = true;
    }
    changed_.notify_all();
  }
  // Waits until the save is through, at most so long for its beginning, and many times as long for its end: a
  // slow disk takes its time. True when it has at least begun.
  bool Wait(std::chrono::milliseconds patience) {
    std::unique_lock lock(mutex_);
    changed_.wait_for(lock, patience, [this] { return ended_; });
    if (taken_) changed_.wait_for(lock, LongestSave * patience, [this] { return ended_; });
    return taken_;
  }

 private:
  std::mutex mutex_;
  std::condition_variable changed_;
  bool taken_ = false;
  bool ended_ = false;
};

struct Listener {
  Listener(std::function<void()> toSave, std::chrono::milliseconds toWait)
      : save(std::move(toSave)), patience(toWait) {}

  const std::function<void()> save;
  const std::chrono::milliseconds patience;
  std::atomic<std::thread::id> saver;
  SavingTurn turn;
};

// Never destroyed: a thread of the toolkit may ask for the last one at the very end.
std::list<Listener>& Listeners() {
  static auto* const listeners = new std::list<Listener>;
  return *listeners;
}

std::atomic<Listener*> theListener = nullptr;
QtMessageHandler handlerBefore = nullptr;

void Save(Listener& listener) {
  if (!listener.turn.Take()) return;
  listener.saver = std::this_thread::get_id();
  listener.save();
  listener.turn.End();
}

bool IsWindowThread() {
  return qApp && QThread::currentThread() == qApp->thread();
}

// The warning may come again out of the save itself: nobody can wait for oneself.
bool IsSaving(const Listener& listener) {
  return listener.saver == std::this_thread::get_id();
}

void SaveOnTheWindowThread(Listener& listener) {
  Save(listener);
  if (!IsSaving(listener)) listener.turn.Wait(listener.patience);
}

// The window thread may be slow, and not hang: a file in its hands is not to be cut off, nor written beside
// it.
void WaitForTheFileInHand(std::chrono::milliseconds patience) {
  const auto begun = std::chrono::steady_clock::now();
  while (IsFileBeingWritten() && std::chrono::steady_clock::now() - begun < LongestSave * patience)
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
}

void WaitForTheWindowThread(Listener& listener) {
  QMetaObject::invokeMethod(
      qApp, [&listener] { Save(listener); }, Qt::QueuedConnection);
  if (listener.turn.Wait(listener.patience)) return;
  WaitForTheFileInHand(listener.patience);
  Save(listener);
}

void AtTheLossOfTheDisplay() {
  Listener* listener = theListener;
  if (!listener || !qApp) return;
  IsWindowThread() ? SaveOnTheWindowThread(*listener) : WaitForTheWindowThread(*listener);
}

bool TellsOfTheLoss(const QString& text) {
  return text.contains(QLatin1String("connection broke")) ||
         text.contains(QLatin1String("connection experienced a fatal error"));
}

void Listen(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (handlerBefore) handlerBefore(type, context, text);
  if (TellsOfTheLoss(text)) AtTheLossOfTheDisplay();
}

// What is drawn for an X server that died a moment ago would end the process before there is any warning.
// Being ignored would be passed on to the programs that this one starts; a handler is not.
void OutliveTheBrokenPipe() {
  struct sigaction nothing {};
  nothing.sa_handler = [](int) {};
  nothing.sa_flags = SA_RESTART;
  sigaction(SIGPIPE, &nothing, nullptr);
}

}  // namespace

void ListenForTheLostDisplay(std::function<void()> save, std::chrono::milliseconds patience) {
  const bool first = theListener == nullptr;
  theListener = &Listeners().emplace_back(std::move(save), patience);
  if (!first) return;
  OutliveTheBrokenPipe();
  handlerBefore = qInstallMessageHandler(&Listen);
  std::atexit(&AtTheLossOfTheDisplay);  // a library of the display's that gives no warning calls exit()
}

}  // namespace platform
