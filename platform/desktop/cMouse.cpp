#include "platform/desktop/cMouse.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <functional>
#include <limits>
#include <xcb/xtest.h>

#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

#include "platform/Failure.h"
#include "platform/Rounding.h"
#include "platform/desktop/X11.h"

namespace {

constexpr std::int32_t FullScale = 65535;  // the pointer's scale runs from 0 to here across the screen
constexpr std::int32_t MostPixels = 32767;

// The screen's pixels times the place on the scale: 32-bit arithmetic, whose limit stays.
long Scaled(std::int32_t place, int screenPixels) {
  const std::int64_t product = std::int64_t{place} * FullScale;
  if (place > MostPixels || product < std::numeric_limits<std::int32_t>::min())
    throw platform::Failure(platform::FailureKind::Overflow);
  return platform::RoundHalfEven(static_cast<double>(product) / screenPixels);
}

int Unscaled(long scaled, int screenPixels) {
  return static_cast<int>(platform::RoundHalfEven(static_cast<double>(scaled) * screenPixels / FullScale));
}

QSize ScreenSize() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  return screen && !screen->size().isEmpty() ? screen->size() : QSize(1, 1);
}

// The server counts in the screen's own pixels, of which a logical one may have several. The corner of a
// screen is the same in both measures.
QPoint DevicePlace(const QPoint& place) {
  const QScreen* screen = QGuiApplication::screenAt(place);
  if (!screen) screen = QGuiApplication::primaryScreen();
  if (!screen) return place;
  const QPoint corner = screen->geometry().topLeft();
  return corner + (place - corner) * screen->devicePixelRatio();
}

std::int16_t ServerNumber(int place) {
  return static_cast<std::int16_t>(std::clamp(place, -0x8000, 0x7FFF));
}

bool CanFakeInput(xcb_connection_t* connection) {
  const auto* extension = xcb_get_extension_data(connection, &xcb_test_id);
  return extension && extension->present;
}

// Lets the server carry out the input, and waits until it has. X11 windows alone are asked: behind another
// display system an X server may be there as well, whose pointer is not the one that is seen.
void FakeInput(const std::function<void(xcb_connection_t*)>& input) {
  if (QGuiApplication::platformName() != QLatin1String("xcb")) return;
  const platform::X11Connection connection = platform::ConnectToX11();
  if (!connection || !CanFakeInput(connection.get())) return;
  input(connection.get());
  std::free(xcb_get_input_focus_reply(connection.get(), xcb_get_input_focus(connection.get()), nullptr));
}

// The server's number of the button.
std::uint8_t ServerButton(std::int32_t button) {
  return button == 2 ? 3 : button == 4 ? 2 : 1;
}

}  // namespace

std::int32_t cMouse::X() const {
  return QCursor::pos().x();
}

std::int32_t cMouse::Y() const {
  return QCursor::pos().y();
}

void cMouse::MoveTo(std::int32_t x, std::int32_t y) {
  const QSize screen = ScreenSize();
  const QPoint place(Unscaled(Scaled(x, screen.width()), screen.width()),
                     Unscaled(Scaled(y, screen.height()), screen.height()));
  const QPoint there = DevicePlace(place);
  FakeInput([there](xcb_connection_t* connection) {
    xcb_test_fake_input(connection, XCB_MOTION_NOTIFY, 0, XCB_CURRENT_TIME, XCB_WINDOW_NONE,
                        ServerNumber(there.x()), ServerNumber(there.y()), 0);
  });
}

void cMouse::Click(std::int32_t button) {
  static constexpr std::array<std::uint8_t, 2> PressAndRelease = {XCB_BUTTON_PRESS, XCB_BUTTON_RELEASE};
  FakeInput([button](xcb_connection_t* connection) {
    for (const std::uint8_t type : PressAndRelease)
      xcb_test_fake_input(connection, type, ServerButton(button), XCB_CURRENT_TIME, XCB_WINDOW_NONE, 0, 0, 0);
  });
}
