#include "pictures/PictureToAdd.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "look/Palettes.h"
#include "look/PixelGrid.h"
#include "platform/Colors.h"
#include "platform/Rounding.h"

std::int32_t AddFrameIndex = 0;
std::int32_t AddWidth = 0;
std::int32_t AddHeight = 0;
double AddScale = 1.0;
std::string AddFile;

namespace {

constexpr double HiMetricPerPixel = 2540.0 / 96;
constexpr double TwipsPerPixelAcross = 15;
constexpr double TwipsPerPixelDown = 15;
constexpr int SurfaceSide = 1000;  // logical pixels
constexpr int ShadowWidth = 6;
constexpr QColor Shadow(0x48, 0x33, 0x21, 18);  // laid so many times

std::int32_t Rounded(double value) {
  constexpr long most = std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(std::min(platform::RoundHalfEven(value), most));
}

std::int32_t InHiMetric(int pixels) {
  return Rounded(pixels * HiMetricPerPixel);
}

// A painter skips pixels when it shrinks, so what gets smaller is brought to its size before.
QImage ReducedTo(QSize size, const QImage& image) {
  if (size.width() >= image.width() || size.isEmpty()) return image;
  return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QPixmap Paper(QSize size, std::uint32_t color, double ratio) {
  QPixmap surface((QSizeF(size) * ratio).toSize());
  surface.setDevicePixelRatio(ratio);
  surface.fill(platform::ToColor(color));
  return surface;
}

// The picture without its first row and column, stretched from the pixel (1, 1) of the surface.
void PaintPicture(QPainter& painter, const QPixmap& picture, QSize natural) {
  const QSize shown(AddWidth, AddHeight);
  if (natural.isEmpty() || shown.isEmpty()) return;
  const QSize device = (QSizeF(shown) * painter.device()->devicePixelRatioF()).toSize();
  const QImage image = ReducedTo(device, picture.toImage());
  const QPointF first(1.0 * image.width() / natural.width(), 1.0 * image.height() / natural.height());
  painter.setRenderHint(QPainter::SmoothPixmapTransform, device.width() > image.width());
  painter.drawImage(QRectF(QPointF(1, 1), shown), image, QRectF(first, image.size()));
}

}  // namespace

// The figure for 100% takes hundredths of a millimetre for twips, which makes it 1.764 of the picture's
// pixels; and each measure goes by the other direction's twips. Both are settled, and so is rounding twice.
void MeasureAtScale(QSize picture) {
  AddWidth = Rounded(InHiMetric(picture.width()) / TwipsPerPixelDown);
  AddHeight = Rounded(InHiMetric(picture.height()) / TwipsPerPixelAcross);
  AddWidth = Rounded(AddWidth * AddScale);
  AddHeight = Rounded(AddHeight * AddScale);
}

QPixmap DrawPreview(const QPixmap& picture, QSize natural, std::uint32_t paper, double ratio) {
  QPixmap surface = Paper({SurfaceSide, SurfaceSide}, paper, ratio);
  QPainter painter(&surface);
  PaintPicture(painter, picture, natural);
  painter.end();
  return surface;
}

QPixmap DrawWaiting(QSize size, std::uint32_t paper, double ratio) {
  QPixmap surface = Paper(size, paper, ratio);
  QPainter painter(&surface);
  QFont font;
  font.setPixelSize(size.height() / 8);
  painter.setFont(font);
  painter.drawText(QRect(QPoint(), size), Qt::AlignCenter, QStringLiteral("…"));
  painter.end();
  return surface;
}

void PaintField(QPainter& painter, const QRect& field, const QRect& picture) {
  painter.fillRect(field, look::Paper);
  look::FrameWithHairline(painter, field, look::Mixed(look::Walnut, look::Board, 0.45f));
  painter.setClipRect(field);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Shadow);
  for (int i = 1; i <= ShadowWidth; ++i)
    painter.drawRoundedRect(picture.adjusted(2 - i / 2, 2 - i / 2, i, i), i, i);
}

std::string ScaleText() {
  const long percent = std::lround(AddScale * 100);
  return "Scale: " + (percent == 0 ? std::string() : std::to_string(percent)) + "%";
}
