#include "platform/desktop/WayOut.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

#include <QtCore/QScopeGuard>
#include <QtCore/QSocketNotifier>
#include <QtGui/QSessionManager>
#include <QtWidgets/QApplication>

namespace platform {
namespace {

// A signal handler may do next to nothing. It writes a byte into a pipe, whose other end is watched by the
// event loop.
std::array<int, 2> thePipe = {-1, -1};

extern "C" void OnSignal(int) {
  const int before = errno;
  const char byte = 1;
  [[maybe_unused]] const ssize_t written = write(thePipe[1], &byte, 1);  // a full pipe tells as much
  errno = before;
}

// A signal that whoever started the program had ignored, as nohup does, stays ignored.
void Catch(int signal) {
  struct sigaction present {};
  if (sigaction(signal, nullptr, &present) != 0 || present.sa_handler == SIG_IGN) return;
  struct sigaction ours {};
  ours.sa_handler = OnSignal;
  ours.sa_flags = SA_RESTART;
  sigemptyset(&ours.sa_mask);
  sigaction(signal, &ours, nullptr);
}

void EmptyThePipe() {
  std::array<char, 64> bytes{};
  while (read(thePipe[0], bytes.data(), bytes.size()) > 0) {
  }
}

std::function<void()>& Leave() {
  static std::function<void()> leave;
  return leave;
}

std::function<bool()>& Save() {
  static std::function<bool()> save;
  return save;
}

bool leavingIsWanted = false;

// A request that comes while another one is being carried out adds nothing to it.
void LeaveOnce() {
  static bool leaving = false;
  leavingIsWanted = true;
  if (std::exchange(leaving, true)) return;
  const auto over = qScopeGuard([] { leaving = false; });
  const std::function<void()> leave = Leave();
  if (leave) leave();
}

// The desktop waits for this. What could not be saved now is in the middle of a long pass, and is saved
// behind it.
void AtTheSaveOfTheSession(QSessionManager& manager) {
  const std::function<bool()> save = Save();
  if (save && !save() && manager.allowsInteraction()) manager.cancel();
}

// The toolkit tells of the end of the session so, and would close all windows on it, asking whoever asks at
// their closing.
class EndOfTheSession : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject* receiver, QEvent* event) override {
    if (receiver != qApp || event->type() != QEvent::Quit) return false;
    LeaveOnce();
    return true;
  }
};

void ListenToTheSession() {
  qApp->installEventFilter(new EndOfTheSession(qApp));
  QObject::connect(qApp, &QGuiApplication::commitDataRequest, qApp, AtTheSaveOfTheSession,
                   Qt::DirectConnection);
}

void ListenToSignals() {
  if (pipe2(thePipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  auto* notifier = new QSocketNotifier(thePipe[0], QSocketNotifier::Read, qApp);
  QObject::connect(notifier, &QSocketNotifier::activated, qApp, [] {
    EmptyThePipe();
    LeaveOnce();
  });
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) Catch(signal);
}

}  // namespace

bool IsLeavingWanted() {
  return leavingIsWanted;
}

void ListenForTheWayOut(std::function<void()> leave, std::function<bool()> save) {
  leavingIsWanted = false;
  Save() = std::move(save);
  Leave() = std::move(leave);
  static bool isListening = false;
  if (std::exchange(isListening, true)) return;
  ListenToSignals();
  ListenToTheSession();
}

}  // namespace platform
