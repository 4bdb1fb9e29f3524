#include "look/Pass.h"

#include <memory>
#include <utility>
#include <vector>

#include <QtCore/QPointer>
#include <QtCore/QThread>
#include <QtCore/QTimer>
#include <QtGui/QInputMethodEvent>
#include <QtWidgets/QApplication>

namespace look {
namespace {

constexpr std::chrono::milliseconds Frame{16};

int depth = 0;
int stillness = 0;
bool serving = false;
QPointer<QWidget> letThrough;
std::vector<std::function<void()>> afterwards;

bool IsUserInput(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
      return true;
    default:
      return false;
  }
}

bool IsLetThrough(QObject* receiver) {
  if (!letThrough) return false;
  const auto* widget = qobject_cast<QWidget*>(receiver);
  return widget ? widget->window() == letThrough : receiver == letThrough->windowHandle();
}

using KeptInput = std::vector<std::pair<QPointer<QObject>, std::unique_ptr<QEvent>>>;

void Deliver(const KeptInput& kept) {
  for (const auto& [receiver, event] : kept)
    if (receiver) QCoreApplication::sendEvent(receiver, event.get());
}

// Input that comes by the window system stays in its queue while the loop is served. Some comes by another
// way, an input method's text for one; it is kept here and delivered, in order, when the pass is over.
class InputKeeper : public QObject {
 public:
  InputKeeper() { qApp->installEventFilter(this); }
  ~InputKeeper() override {
    if (!kept_->empty()) Pass::RunAfterwards([kept = kept_] { Deliver(*kept); });
  }

  bool eventFilter(QObject* receiver, QEvent* event) override {
    // A message box that opens meanwhile runs a loop of its own and must be answered.
    if (QThread::currentThread()->loopLevel() != level_ || !IsUserInput(event->type())) return false;
    if (IsLetThrough(receiver)) return false;
    kept_->emplace_back(receiver, event->clone());
    return true;
  }

 private:
  int level_ = QThread::currentThread()->loopLevel();
  std::shared_ptr<KeptInput> kept_ = std::make_shared<KeptInput>();
};

void RunWhatWaited() {
  if (depth > 0) return;  // the end of that pass calls again
  for (const auto& action : std::exchange(afterwards, {})) action();
}

void CallRunWhatWaited() {
  QTimer::singleShot(0, qApp, &RunWhatWaited);
}

}  // namespace

Pass::Pass() : lastServed_(std::chrono::steady_clock::now()) {
  ++depth;
}

Pass::~Pass() {
  if (--depth == 0 && !afterwards.empty()) CallRunWhatWaited();
}

Pass::Stillness::Stillness() {
  ++stillness;
}

Pass::Stillness::~Stillness() {
  --stillness;
}

void Pass::Yield() {
  if (std::chrono::steady_clock::now() - lastServed_ >= Frame) Serve();
}

void Pass::Await(std::chrono::milliseconds most, const std::function<bool()>& isSo) {
  const auto end = std::chrono::steady_clock::now() + most;
  while (Serve() && !isSo() && std::chrono::steady_clock::now() < end) {
  }
}

bool Pass::Serve() {
  if (serving || stillness > 0) return false;
  serving = true;
  {
    const InputKeeper keeper;
    QCoreApplication::processEvents(letThrough ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
  }
  serving = false;
  lastServed_ = std::chrono::steady_clock::now();
  return true;
}

void Pass::LetThrough(QWidget* window) {
  letThrough = window;
}

bool Pass::InProgress() {
  return depth > 0;
}

void Pass::RunAfterwards(std::function<void()> action) {
  afterwards.push_back(std::move(action));
  if (depth == 0) CallRunWhatWaited();
}

}  // namespace look
