#include <gtest/gtest.h>

#include <QtGui/QClipboard>
#include <QtTest/QTest>
#include <QtWidgets/QToolTip>

#include "look/CodePageEdit.h"
#include "look/PictureButton.h"
#include "look/Theme.h"
#include "state/State.h"

namespace {

// As keyClicks, with letters beyond Latin-1.
void Type(QWidget& box, const QString& text) {
  for (const QChar letter : text)
    QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, letter, Qt::NoModifier);
}

TEST(CodePageEdit, RefusesWhatTheFilesCannotHoldAndSaysWhich) {
  look::CodePageEdit box;
  box.show();
  Type(box, QStringLiteral("Zoë €ž"));
  EXPECT_EQ(box.Bytes(), "Zo\xEB \x80\x9E");
  EXPECT_FALSE(QToolTip::isVisible());
  Type(box, QStringLiteral("ş"));
  EXPECT_EQ(box.text(), QStringLiteral("Zoë €ž"));
  EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("“ş”"))) << QToolTip::text().toStdString();
  QToolTip::hideText();
}

TEST(CodePageEdit, RefusesAPasteWholeAndKeepsWhatWasSelected) {
  look::CodePageEdit box;
  box.setText(QStringLiteral("kept"));
  box.selectAll();
  QGuiApplication::clipboard()->setText(QStringLiteral("ab☃c"));
  box.paste();
  EXPECT_EQ(box.text(), QStringLiteral("kept"));
  EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("☃")));
  QGuiApplication::clipboard()->setText(QStringLiteral("new"));
  box.paste();
  EXPECT_EQ(box.text(), QStringLiteral("new"));
}

TEST(CodePageEdit, HidesAPasswordBehindAsterisks) {
  look::CodePageEdit box;
  box.HideText();
  QTest::keyClicks(&box, QStringLiteral("Abc"));
  EXPECT_EQ(box.displayText(), QStringLiteral("***"));
  EXPECT_EQ(box.Bytes(), "Abc");
  EXPECT_TRUE(box.inputMethodHints() & Qt::ImhHiddenText);
}

class ThemeTest : public testing::TestWithParam<int> {
 protected:
  ~ThemeTest() override { ResetState(); }
};

// The mean colour is the tint, and nothing strays far from it, so that text is easy to read anywhere.
TEST_P(ThemeTest, PicturesHaveTheToldSizesAndTints) {
  const QSize buttons[] = {{199, 107}, {205, 120}, {207, 112}};
  const QColor tints[] = {{0xC0, 0xC0, 0xFF}, {0xFF, 0xC0, 0xC0}, {0xFF, 0xC0, 0xFF}};
  optColor = GetParam();
  const look::Theme& theme = look::CurrentTheme();
  EXPECT_EQ(theme.large.size(), QSize(800, 600));
  EXPECT_EQ(theme.button.size(), buttons[GetParam()]);
  EXPECT_EQ(theme.surface, tints[GetParam()]);
  const QImage picture = theme.large.toImage();
  const QColor mean = picture.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixelColor(0, 0);
  EXPECT_NEAR(mean.green(), theme.surface.green(), 6);
  for (int x = 0; x < 800; x += 7)
    EXPECT_NEAR(picture.pixelColor(x, x * 3 / 4).lightnessF(), theme.surface.lightnessF(), 0.04);
}

INSTANTIATE_TEST_SUITE_P(All, ThemeTest, testing::Values(0, 1, 2));

// Each state of a button looks like no other.
TEST(PictureButton, ShowsItsStates) {
  look::PictureButton button(QStringLiteral("&Ok"));
  button.SetPicture(look::CurrentTheme().button);
  button.resize(120, 30);
  std::vector<QImage> faces;
  const auto keep = [&] { faces.push_back(button.grab().toImage()); };
  keep();
  button.setDefault(true);
  keep();
  button.setDown(true);
  keep();
  button.setDown(false);
  QFont bold = button.font();
  bold.setBold(true);
  button.setFont(bold);
  keep();
  button.setEnabled(false);
  keep();
  for (std::size_t i = 0; i < faces.size(); ++i)
    for (std::size_t j = i + 1; j < faces.size(); ++j) EXPECT_NE(faces[i], faces[j]) << i << " and " << j;
}

}  // namespace
