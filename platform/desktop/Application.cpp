#include "platform/desktop/Application.h"

#include <exception>
#include <malloc.h>
#include <sys/resource.h>
#include <utility>

#include <QtCore/QSettings>

#include "platform/Process.h"
#include "platform/desktop/DialogKeys.h"
#include "platform/desktop/PopupEscape.h"
#include "platform/dialogs/MessageBox.h"

namespace platform {
namespace {

const char unknownFailure[] = "Unknown failure";

// A step on the way to the end: whatever becomes of it, the end must come.
template <class Step>
void Quietly(Step&& step) {
  try {
    step();
  } catch (...) {
    // There is nobody left to be told.
  }
}

// The toolkit's dialogs note in the user's configuration, for every program to read, which folders and
// colours a person has chosen. Nothing can lie behind this path.
void KeepNoNotesOfTheToolkit() {
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
}

// An image of the memory, which a crash would leave wherever the system puts it, has the open page in it.
void LeaveNoImageOfTheMemory() {
  rlimit limit{};
  getrlimit(RLIMIT_CORE, &limit);
  limit.rlim_cur = 0;
  setrlimit(RLIMIT_CORE, &limit);
}

// The allocator learns from each large block that is freed to keep the next ones, as holes between others:
// a shown picture's 1.5 MB, hundreds of times. Told a size it stops learning.
void GiveLargeBlocksBack() {
  constexpr int megabyte = 1 << 20;
  mallopt(M_MMAP_THRESHOLD, megabyte);
  mallopt(M_TRIM_THRESHOLD, 4 * megabyte);
}

}  // namespace

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
  GiveLargeBlocksBack();
  KeepNoNotesOfTheToolkit();
  LeaveNoImageOfTheMemory();
  KeepEscapeToPopups();
  KeepTheKeysInDialogs();
}

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception& failure) {
    DieOf(failure.what());
  } catch (...) {
    DieOf(unknownFailure);
  }
  return true;
}

void Application::DieOf(const std::string& text) {
  // The box and the last will run events of their own. A failure in one of these is part of the same death.
  if (std::exchange(dying_, true)) return;
  Quietly([&] { ShowMessage(text, BoxIcon::Stop); });
  if (lastWill_) Quietly(lastWill_);
  EndProcess();
  dying_ = false;  // reached only where a test stands in for the end
}

}  // namespace platform
