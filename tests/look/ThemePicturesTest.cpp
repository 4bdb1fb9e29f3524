#include <cmath>
#include <gtest/gtest.h>

#include <QtGui/QImage>

#include "look/Palettes.h"
#include "look/Theme.h"
#include "look/frmPicSource.h"
#include "platform/Contrast.h"

namespace {

// The grey of the darkest place, 0 to 255.
int DarkestGray(const QImage& picture) {
  int darkest = 255;
  for (int i = 0; i < picture.width() * picture.height(); ++i)
    darkest = std::min(darkest, qGray(picture.pixel(i % picture.width(), i / picture.width())));
  return darkest;
}

TEST(ThemePictures, HaveTheirSizeAndTintAndAreEasyToReadOn) {
  const std::tuple<QString, QSize, QColor> themes[] = {{u"blue"_qs, {199, 107}, 0xC0C0FF},
                                                       {u"pink"_qs, {205, 120}, 0xFFC0C0},
                                                       {u"purple"_qs, {207, 112}, 0xFFC0FF}};
  for (int index = 0; index < 3; ++index) {
    const auto& [name, buttonSize, tint] = themes[index];
    look::PutOnTheme(index);
    EXPECT_EQ(look::CurrentTheme().surface, tint) << index;
    EXPECT_EQ(look::CurrentTheme().large.deviceIndependentSize(), QSizeF(800, 600)) << index;
    EXPECT_EQ(look::CurrentTheme().button.deviceIndependentSize(), QSizeF(buttonSize)) << index;
    EXPECT_EQ(QImage(u":/themes/%1-large@2x"_qs.arg(name)).size(), QSize(1600, 1200)) << "for sharp screens";
    EXPECT_EQ(QImage(u":/themes/%1-button@2x"_qs.arg(name)).size(), 2 * buttonSize) << "for sharp screens";
    for (const QPixmap& picture : {look::CurrentTheme().large, look::CurrentTheme().button}) {
      EXPECT_GE(DarkestGray(picture.toImage()), 178) << "seven times as bright as the ink over it";
      const QColor mean = picture.toImage().scaled(1, 1, {}, Qt::SmoothTransformation).pixelColor(0, 0);
      for (const int off : {mean.red() - tint.red(), mean.green() - tint.green(), mean.blue() - tint.blue()})
        EXPECT_LE(std::abs(off), 8) << index;
    }
  }
  for (const int none : {-1, 3})
    EXPECT_TRUE(frmPicSource::picLarge(none).isNull() && frmPicSource::PicButtonSize(none).isNull());
}

TEST(Palettes, WriteWhatIsEasyToRead) {
  using enum QPalette::ColorRole;
  using platform::Contrast;
  EXPECT_NEAR(Contrast(Qt::white, 0x777777), 4.48, 0.005);
  constexpr std::pair<QPalette::ColorRole, QPalette::ColorRole> texts[] = {{WindowText, Window},
                                                                           {Text, Base},
                                                                           {Text, AlternateBase},
                                                                           {ButtonText, Button},
                                                                           {HighlightedText, Highlight},
                                                                           {Link, Window},
                                                                           {Link, Base},
                                                                           {LinkVisited, Window},
                                                                           {LinkVisited, Base},
                                                                           {PlaceholderText, Base},
                                                                           {ToolTipText, ToolTipBase}};
  for (const QColor surface : {QColor(), QColor(0xC0C0FF), QColor(0xFFC0C0), QColor(0xFFC0FF)}) {
    const QPalette palette = surface.isValid() ? look::PaletteOn(surface) : look::PaperPalette();
    for (const auto& [text, ground] : texts) {
      for (const auto group : {QPalette::Active, QPalette::Inactive})
        EXPECT_GE(Contrast(palette.color(group, text), palette.color(group, ground)), 4.5)
            << text << ' ' << surface.rgb();
      const double disabled =
          Contrast(palette.color(QPalette::Disabled, text), palette.color(QPalette::Disabled, ground));
      EXPECT_GE(disabled, text == HighlightedText ? 3 : 4) << text << ' ' << surface.rgb();
    }
    for (const auto mark : {Highlight, Text})  // what is chosen, and the line around what has the keyboard
      for (const auto ground : {Window, Button, Base})
        for (const auto group : {QPalette::Active, QPalette::Inactive})
          EXPECT_GE(Contrast(palette.color(group, mark), palette.color(group, ground)), 3)
              << mark << ' ' << group << ' ' << surface.rgb();
  }
}

}  // namespace
