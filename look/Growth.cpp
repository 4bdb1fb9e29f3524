#include "look/Growth.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include <QtGui/QFontMetrics>
#include <QtGui/QScreen>
#include <QtWidgets/QApplication>

#include "platform/Rounding.h"

namespace look {
namespace {

const QString Sample = QStringLiteral("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ");
constexpr double WidthOfTheSample = 385;  // pixels, in the design's font
constexpr double HeightOfALine = 20;      // pixels: the room for one by design
constexpr double Steps = 8;

// Pixels, with what a window manager's frame takes. Higher ones have something that may be lower than
// designed (Form::LowerToFit).
constexpr double WidestDialog = 676 + 16;
constexpr double HighestDialog = 464 + 48;

double WantedBy(const QFont& font) {
  const QFontMetrics letters(font);
  return std::max(letters.horizontalAdvance(Sample) / WidthOfTheSample, letters.height() / HeightOfALine);
}

double Step(double growth) {
  return std::max(1.0, std::floor(growth * Steps) / Steps);
}

QSize Screen() {
  return QApplication::primaryScreen()->availableSize();
}

std::optional<double> measured;

}  // namespace

double GrowthFor(const QFont& font, const QSize& screen) {
  const double most = std::min(screen.width() / WidestDialog, screen.height() / HighestDialog);
  return Step(std::min(WantedBy(font), most));
}

QFont FontFor(const QFont& font, const QSize& screen) {
  const double wanted = WantedBy(font), growth = GrowthFor(font, screen);
  if (Step(wanted) <= growth) return font;
  QFont smaller = font;
  smaller.setPixelSize(static_cast<int>(QFontInfo(font).pixelSize() * growth / wanted));
  return smaller;
}

double Growth() {
  if (!measured) measured = GrowthFor(QApplication::font(), Screen());
  return *measured;
}

void MeasureGrowthAnew() {
  measured.reset();
}

int Grown(double pixels) {
  return static_cast<int>(platform::RoundHalfEven(pixels * Growth()));
}

QSize Grown(const QSize& pixels) {
  return {Grown(pixels.width()), Grown(pixels.height())};
}

void WearGrownFont(QWidget& window) {
  const QFont desktops = QApplication::font(), font = FontFor(desktops, Screen());
  if (font != desktops) window.setFont(font);
}

}  // namespace look
