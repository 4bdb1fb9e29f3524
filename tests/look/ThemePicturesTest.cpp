#include <cmath>
#include <gtest/gtest.h>

#include <QtGui/QImage>

#include "look/Theme.h"
#include "look/frmPicSource.h"

namespace {

constexpr QRgb Ink = 0xff2b2430;  // of the labels over the pictures

double Luminance(QRgb color) {
  const auto linear = [](int part) {
    return part <= 10 ? part / 255.0 / 12.92 : std::pow((part / 255.0 + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

// Of the letters at the darkest place.
double LeastContrast(const QImage& picture) {
  double least = 21;
  for (int i = 0; i < picture.width() * picture.height(); ++i) {
    const QRgb color = picture.pixel(i % picture.width(), i / picture.width());
    least = std::min(least, (Luminance(color) + 0.05) / (Luminance(Ink) + 0.05));
  }
  return least;
}

TEST(ThemePictures, HaveTheirSizeAndTintAndAreEasyToReadOn) {
  const std::tuple<QString, QSize, QColor> themes[] = {{u"blue"_qs, {199, 107}, 0xC0C0FF},
                                                       {u"pink"_qs, {205, 120}, 0xFFC0C0},
                                                       {u"purple"_qs, {207, 112}, 0xFFC0FF}};
  for (int index = 0; index < 3; ++index) {
    const auto& [name, buttonSize, tint] = themes[index];
    look::PutOnTheme(index);
    EXPECT_EQ(look::CurrentTheme().surface, tint) << index;
    EXPECT_EQ(look::CurrentTheme().large.size(), QSize(800, 600)) << index;
    EXPECT_EQ(look::CurrentTheme().button.size(), buttonSize) << index;
    EXPECT_EQ(QImage(u":/themes/%1-large@2x"_qs.arg(name)).size(), QSize(1600, 1200)) << "for sharp screens";
    EXPECT_EQ(QImage(u":/themes/%1-button@2x"_qs.arg(name)).size(), 2 * buttonSize) << "for sharp screens";
    for (const QPixmap& picture : {look::CurrentTheme().large, look::CurrentTheme().button}) {
      EXPECT_GE(LeastContrast(picture.toImage()), 7) << index;
      const QColor mean = picture.toImage().scaled(1, 1, {}, Qt::SmoothTransformation).pixelColor(0, 0);
      for (const int off : {mean.red() - tint.red(), mean.green() - tint.green(), mean.blue() - tint.blue()})
        EXPECT_LE(std::abs(off), 8) << index;
    }
  }
  for (const int none : {-1, 3})
    EXPECT_TRUE(frmPicSource::picLarge(none).isNull() && frmPicSource::PicButtonSize(none).isNull());
}

}  // namespace
