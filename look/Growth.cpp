#include "look/Growth.h"

#include <algorithm>
#include <cmath>

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

// Pixels, with what a window manager's frame takes.
constexpr double WidestDialog = 676 + 16;
constexpr double HighestDialog = 560 + 48;

}  // namespace

double GrowthFor(const QFont& font, const QSize& screen) {
  const QFontMetrics letters(font);
  const double wanted =
      std::max(letters.horizontalAdvance(Sample) / WidthOfTheSample, letters.height() / HeightOfALine);
  const double most = std::min(screen.width() / WidestDialog, screen.height() / HighestDialog);
  return std::max(1.0, std::floor(std::min(wanted, most) * Steps) / Steps);
}

double Growth() {
  static QFont measured;
  static double growth = 0;
  const QFont font = QApplication::font();
  if (growth == 0 || font != measured) {
    growth = GrowthFor(font, QApplication::primaryScreen()->availableSize());
    measured = font;
  }
  return growth;
}

int Grown(double pixels) {
  return static_cast<int>(platform::RoundHalfEven(pixels * Growth()));
}

}  // namespace look
