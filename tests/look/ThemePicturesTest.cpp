#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>

#include <QtGui/QImage>

#include "look/frmPicSource.h"

namespace {

constexpr QRgb Ink = 0xff2b2430;  // of the labels over the pictures

double Luminance(QRgb color) {
  static const auto linear = [] {
    std::array<double, 256> table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
      const double value = static_cast<double>(i) / 255;
      table[i] = value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    }
    return table;
  }();
  const auto of = [](int part) { return linear[static_cast<std::size_t>(part)]; };
  return 0.2126 * of(qRed(color)) + 0.7152 * of(qGreen(color)) + 0.0722 * of(qBlue(color));
}

// The contrast of the letters at the darkest pixel, and the means of red, green and blue over all pixels.
struct Survey {
  double leastContrast = 21;
  std::array<double, 3> mean{};
};

Survey Look(const QImage& picture) {
  Survey survey;
  const double pixels = double(picture.width()) * picture.height();
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) {
      const QRgb color = picture.pixel(x, y);
      survey.leastContrast =
          std::min(survey.leastContrast, (Luminance(color) + 0.05) / (Luminance(Ink) + 0.05));
      survey.mean[0] += qRed(color) / pixels;
      survey.mean[1] += qGreen(color) / pixels;
      survey.mean[2] += qBlue(color) / pixels;
    }
  return survey;
}

TEST(ThemePictures, HaveTheirSizeAndTintAndAreEasyToReadOn) {
  const struct {
    int index;
    const char* name;
    QSize button;
    std::array<double, 3> tint;
  } themes[] = {
      {0, "blue", {199, 107}, {0xC0, 0xC0, 0xFF}},
      {1, "pink", {205, 120}, {0xFF, 0xC0, 0xC0}},
      {2, "purple", {207, 112}, {0xFF, 0xC0, 0xFF}},
  };
  for (const auto& theme : themes) {
    const QImage large = frmPicSource::picLarge(theme.index).toImage();
    const QImage button = frmPicSource::PicButtonSize(theme.index).toImage();
    EXPECT_EQ(large.size(), QSize(800, 600)) << theme.index;
    EXPECT_EQ(button.size(), theme.button) << theme.index;
    const QString sharper = QStringLiteral(":/themes/%1-%2@2x").arg(QLatin1String(theme.name));
    EXPECT_EQ(QImage(sharper.arg(u"large"_qs)).size(), 2 * large.size()) << theme.name;
    EXPECT_EQ(QImage(sharper.arg(u"button"_qs)).size(), 2 * button.size()) << theme.name;
    for (const Survey& survey : {Look(large), Look(button)}) {
      EXPECT_GE(survey.leastContrast, 7) << theme.index;
      for (std::size_t part = 0; part < 3; ++part)
        EXPECT_NEAR(survey.mean[part], theme.tint[part], 8) << part;
    }
  }
  for (const int none : {-1, 3}) {
    EXPECT_TRUE(frmPicSource::picLarge(none).isNull());
    EXPECT_TRUE(frmPicSource::PicButtonSize(none).isNull());
  }
}

}  // namespace
