#include "look/Theme.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

#include <QtGui/QImage>

#include "state/State.h"

namespace look {
namespace {

constexpr QSize LargeSize(800, 600);

// Where a point of the material lies in the light, from -1 to 1.
using Grain = double (*)(int x, int y);

struct Material {
  QColor tint;
  QSize buttonSize;
  Grain grain;
};

// The same for a point at every start, so that the pictures are always the same.
double Speck(int x, int y) {
  auto hash = static_cast<std::uint32_t>(x) * 374761393u + static_cast<std::uint32_t>(y) * 668265263u;
  hash = (hash ^ (hash >> 13)) * 1274126177u;
  return static_cast<double>((hash >> 16) & 0xFF) / 127.5 - 1;
}

double Linen(int x, int y) {
  const bool warp = (x / 2 + y / 2) % 2 == 0;
  return (warp ? 0.35 : -0.35) + 0.3 * Speck(warp ? x : x / 6, warp ? y / 6 : y);
}

double HandmadePaper(int x, int y) {
  return 0.4 * Speck(x / 2, y / 2) + 0.3 * Speck(x / 9, y / 5);
}

double Marble(int x, int y) {
  const double combed = std::sin(x / 23.0 + 2.2 * std::sin(y / 37.0) + 0.8 * std::sin((x + 2 * y) / 61.0));
  return 0.6 * combed + 0.15 * Speck(x, y);
}

const std::array<Material, 3> Materials{{
    {QColor(0xC0, 0xC0, 0xFF), QSize(199, 107), &Linen},
    {QColor(0xFF, 0xC0, 0xC0), QSize(205, 120), &HandmadePaper},
    {QColor(0xFF, 0xC0, 0xFF), QSize(207, 112), &Marble},
}};

// Little contrast, so that text anywhere on it is easy to read.
QRgb Lit(const QColor& tint, double light) {
  const int step = static_cast<int>(std::lround(7 * light));
  const auto channel = [step](int value) { return std::clamp(value + step, 0, 255); };
  return qRgb(channel(tint.red()), channel(tint.green()), channel(tint.blue()));
}

QPixmap Weave(const Material& material, const QSize& size) {
  QImage image(size, QImage::Format_RGB32);
  for (int y = 0; y < size.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < size.width(); ++x) line[x] = Lit(material.tint, material.grain(x, y));
  }
  return QPixmap::fromImage(image);
}

Theme Make(const Material& material) {
  return {Weave(material, LargeSize), Weave(material, material.buttonSize), material.tint};
}

}  // namespace

const Theme& CurrentTheme() {
  // Never destroyed: pixmaps must not outlive the application object, and statics do.
  static Theme* theme = nullptr;
  static std::int32_t number = -1;
  if (theme && number == optColor) return *theme;
  number = optColor;
  const bool known = number >= 0 && number < static_cast<std::int32_t>(Materials.size());
  if (!theme) theme = new Theme;
  *theme = Make(Materials.at(known ? static_cast<std::size_t>(number) : 0));
  return *theme;
}

}  // namespace look
