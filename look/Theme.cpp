#include "look/Theme.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>

#include <QtGui/QImage>
#include <QtGui/QPainter>

#include "state/State.h"

namespace look {
namespace {

constexpr QSize LargeSize(800, 600);
// A material is woven once in this size and laid in tiles: the start of the program waits for it.
constexpr QSize Tile(200, 120);

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

// Its waves come round at the edges of a tile.
double Marble(int x, int y) {
  const double across = 2 * std::numbers::pi * x / Tile.width();
  const double down = 2 * std::numbers::pi * y / Tile.height();
  return 0.6 * std::sin(2 * across + 2.2 * std::sin(down) + 0.8 * std::sin(across + down)) +
         0.15 * Speck(x, y);
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

QPixmap Weave(const Material& material) {
  QImage image(Tile, QImage::Format_RGB32);
  for (int y = 0; y < Tile.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < Tile.width(); ++x) line[x] = Lit(material.tint, material.grain(x, y));
  }
  return QPixmap::fromImage(image);
}

QPixmap Lay(const QPixmap& tile, const QSize& size) {
  QPixmap picture(size);
  QPainter(&picture).drawTiledPixmap(picture.rect(), tile);
  return picture;
}

Theme Make(const Material& material) {
  const QPixmap tile = Weave(material);
  return {Lay(tile, LargeSize), Lay(tile, material.buttonSize), material.tint};
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
