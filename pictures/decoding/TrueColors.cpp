#include "pictures/decoding/TrueColors.h"

#include <cmath>

#include <QtGui/QColorSpace>
#include <QtGui/QPixelFormat>

namespace pictures {
namespace {

// A PNG without a profile that tells the gamma of a screen means the screen's own curve by it.
QColorSpace MeantBy(const QColorSpace& colors) {
  const bool isTold = colors.transferFunction() == QColorSpace::TransferFunction::Gamma &&
                      std::abs(colors.gamma() - 2.2F) < 0.05F && colors.description().isEmpty();
  return isTold ? colors.withTransferFunction(QColorSpace::TransferFunction::SRgb) : colors;
}

QImage InScreenColors(const QImage& image) {
  const QColorSpace colors = MeantBy(image.colorSpace());
  const QColorSpace screen(QColorSpace::SRgb);
  if (!colors.isValid() || colors == screen) return image;
  QImage converted =
      image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
  converted.setColorSpace(colors);
  converted.convertToColorSpace(screen);
  return converted;
}

QImage::Format SmallestFormat(const QImage& image) {
  if (image.format() == QImage::Format_Grayscale8) return image.format();
  return image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB888;
}

bool IsOfPalette(QImage::Format format) {
  return format == QImage::Format_Mono || format == QImage::Format_MonoLSB ||
         format == QImage::Format_Indexed8;
}

}  // namespace

bool IsScaledAfterReading(QImage::Format format) {
  if (format == QImage::Format_Invalid) return false;
  const QPixelFormat pixels = QImage::toPixelFormat(format);
  return pixels.bitsPerPixel() > 32 || pixels.alphaUsage() == QPixelFormat::UsesAlpha || IsOfPalette(format);
}

QImage InEightBits(const QImage& image) {
  if (IsOfPalette(image.format()))
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
  if (image.format() == QImage::Format_Grayscale16) return image.convertToFormat(QImage::Format_Grayscale8);
  if (image.depth() <= 32) return image;
  return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
}

QImage ForTheScreen(const QImage& image) {
  const QImage colored = InScreenColors(image);
  return colored.convertToFormat(SmallestFormat(colored));
}

}  // namespace pictures
