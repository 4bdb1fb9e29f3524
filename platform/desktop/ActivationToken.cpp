#include "platform/desktop/RunningInstance.h"

namespace platform {
namespace {

// The desktops write the time of the person's action at the end of the startup id.
quint32 TimestampIn(const QByteArray& startupId) {
  const qsizetype mark = startupId.lastIndexOf("_TIME");
  return mark < 0 ? 0 : startupId.mid(mark + 5).toUInt();
}

}  // namespace

ActivationToken RunningInstance::TokenOfThisStart() {
  const QByteArray forX11 = qgetenv("DESKTOP_STARTUP_ID");
  const QByteArray forWayland = qgetenv("XDG_ACTIVATION_TOKEN");
  const bool wayland = !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
  const QByteArray& first = wayland ? forWayland : forX11;
  const QByteArray& second = wayland ? forX11 : forWayland;
  return {first.isEmpty() ? second : first, TimestampIn(forX11.isEmpty() ? forWayland : forX11)};
}

}  // namespace platform
