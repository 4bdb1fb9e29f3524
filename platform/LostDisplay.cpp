// The toolkit tells of a broken connection to the display in a warning and calls exit() with its next
// statement. There is no other word of it, and behind exit() the toolkit is half gone; so the warning is
// listened for.
#include <functional>
#include <utility>

#include <QtCore/QString>

#include "platform/WayOut.h"

namespace platform {
namespace {

std::function<void()>& Save() {
  static std::function<void()> save;
  return save;
}

QtMessageHandler& HandlerBefore() {
  static QtMessageHandler handler = nullptr;
  return handler;
}

void Listen(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (HandlerBefore()) HandlerBefore()(type, context, text);
  if (!text.contains(QLatin1String("connection broke"))) return;
  if (const auto save = std::exchange(Save(), nullptr)) save();
}

}  // namespace

void ListenForTheLostDisplay(std::function<void()> save) {
  const bool first = !std::exchange(Save(), std::move(save));
  if (first) HandlerBefore() = qInstallMessageHandler(&Listen);
}

}  // namespace platform
