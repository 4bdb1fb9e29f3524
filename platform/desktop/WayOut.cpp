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

// The desktop waits for this. Whoever comes back from the way out is in the middle of a long pass, behind
// which the program ends; so the session is asked to stay until then.
void AtTheEndOfTheSession(QSessionManager& manager) {
  const bool mayAsk = manager.allowsInteraction();
  LeaveOnce();
  if (mayAsk) manager.cancel();
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

void ListenForTheWayOut(std::function<void()> leave) {
  leavingIsWanted = false;
  const bool first = !std::exchange(Leave(), std::move(leave));
  if (!first) return;
  ListenToSignals();
  QObject::connect(qApp, &QGuiApplication::commitDataRequest, qApp, AtTheEndOfTheSession,
                   Qt::DirectConnection);
}

}  // namespace platform
