// The window itself: its measures and its toolbar.
#include "editor/BindingShade.h"
#include "look/PictureBox.h"
#include "pictures/PictureSlots.h"
#include "tests/editor/OpenBook.h"

namespace {

class Window : public fixture::OpenBook {
 protected:
  Window() { Begin({"cover", "one"}); }
  PageFace& face() { return *window().face; }
  // All eighteen; "-" for an empty one.
  QString Captions() {
    QStringList captions;
    for (int position = 1; position <= window().Toolbar1->Count(); ++position)
      captions += window().Toolbar1->Caption(position);
    return captions.replaceInStrings(QRegularExpression(u"^$"_qs), u"-"_qs).join(u' ');
  }
};

TEST_F(Window, GrowsAroundLabelsThatStayAndTooSmallKeepsEachFormerMeasure) {
  const struct {
    QSize window, text;
  } cases[] = {{{1000, 700}, {934, 642}},
               {{67, 500}, {1, 442}},
               {{66, 400}, {1, 342}},  // 990 twips leave -1 for the width
               {{30, 20}, {1, 342}}};
  for (const auto& [size, page] : cases) {
    window().resize(size);
    QCoreApplication::processEvents();
    EXPECT_EQ(text().geometry(), QRect(QPoint(66, 58), page)) << size.width();
    EXPECT_EQ(face().picTop->geometry(), QRect(0, 0, size.width(), 58));
    EXPECT_EQ(face().lblPageNum1->geometry().right(), 560);
  }
}

// The largest step from a pixel to the next one, in levels of its strongest channel, but for the hairline and
// for what lies under the crease.
int RoughestStep(const QImage& shade) {
  int most = 0;
  const double scale = shade.devicePixelRatio();
  const auto isSeen = [scale](int x) {
    return x / scale < 65 - 1 / scale && (x < 51 * scale - 1 || x > 53 * scale);
  };
  const auto note = [&](QRgb a, QRgb b) {
    most = std::max(
        {most, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
  };
  for (int y = 1; y < shade.height(); ++y)
    for (int x = 1; x < shade.width(); ++x) {
      if (!isSeen(x)) continue;
      note(shade.pixel(x, y), shade.pixel(x - 1, y));
      note(shade.pixel(x, y), shade.pixel(x, y - 1));
    }
  return most;
}

TEST(Binding, IsShadedSoftlyOnEveryPaperAndScreen) {
  for (const double scale : {1.0, 1.5, 2.0})
    for (const QRgb paper : {0xFFFFFFFFu, 0xFFFFF8EAu, 0xFFC0C0FFu, 0xFF000000u}) {
      QImage shade(QSize(66, 300) * scale, QImage::Format_RGB32);
      shade.setDevicePixelRatio(scale);
      shade.fill(paper);
      QPainter painter(&shade);
      PaintBindingShade(painter, QRect(0, 0, 66, 300));
      EXPECT_LE(RoughestStep(shade), 6) << std::hex << paper << " at " << scale;
      EXPECT_NE(shade.pixel(0, 10), paper);
    }
}

TEST_F(Window, TogglingTheCaptionsGoesByTheOldPositions) {
  const QRect page = text().geometry();
  EXPECT_EQ(Captions(), u"New Title Back Next Last - Print Index Cal - Emote Pic Font - Opt Prop - Help");
  for (const bool without : {true, false, true}) {
    window().SwitchToolbarCaptions();
    EXPECT_EQ(Captions(),
              without ? u"- - - - - - - - - - - Pic Font - Opt Prop - Help"
                      : u"New Title Back Next Last - Font Pic - Options Prop Pic Font - Opt Prop - Help");
    EXPECT_EQ(face().picTop->height(), without ? 25 : 80);
    EXPECT_EQ(face().childAt(300, 70), without ? static_cast<QWidget*>(text().viewport()) : face().picTop);
  }
  EXPECT_EQ(text().geometry(), page);
}

TEST_F(Window, F6LeadsRoundThePageTheToolbarAndThePictures) {
  folder.WritePicture("photo.png");
  PictureCount = 1;
  Pictures.resize(2);
  Pictures[1].PictureFile = folder.PathOf("photo.png");
  Pictures[1].PictureWidth = Pictures[1].PictureHeight = 50;
  Pictures[1].JournalFile = Journals[1].FileName;
  ShowPagePictures();
  QWidget* const round[] = {window().Toolbar1->Button(1), face().pictures->picDisplayPics[0], &text()};
  for (const QWidget* target : round) {
    QTest::keyClick(window().focusWidget(), Qt::Key_F6);
    EXPECT_EQ(window().focusWidget(), target);
  }
  for (const int target : {1, 0, 2}) {
    QTest::keyClick(window().focusWidget(), Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_EQ(window().focusWidget(), round[target]);
  }
  round[1]->setFocus();
  QLineEdit inFront;
  inFront.show();
  inFront.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&inFront));
  HidePagePictures();
  EXPECT_EQ(window().focusWidget(), &text()) << "a picture that goes leaves the keys to the text";
}

TEST_F(Window, AfterACommandWithAWindowOfItsOwnTheKeysAreInThePage) {
  platform::SetFontChooser([](const auto&) { return platform::DialogResult<platform::FontValues>{}; });
  const fixture::Dismissal dismissal;
  for (const auto& [key, press] : {std::pair{"btnFont", Qt::Key_Space},
                                   {"btnInsertPicture", Qt::Key_Return},
                                   {"btnCal", Qt::Key_Enter},
                                   {"btnInsertEmoticon", Qt::Key_Space},
                                   {"btnIndex", Qt::Key_Return}}) {
    auto* button = window().Toolbar1->Button(QString::fromLatin1(key));
    button->setFocus();
    QTest::keyClick(button, press);
    QCoreApplication::processEvents();
    EXPECT_EQ(window().focusWidget(), &text()) << key;
  }
  platform::SetFontChooser({});
}

TEST_F(Window, TheArrowsStayInTheToolbarAndATurnIsSaid) {
  auto* back = window().Toolbar1->Button(3);
  back->setFocus();
  for (const auto& [key, position] : {std::pair{Qt::Key_Left, 2},
                                      {Qt::Key_Home, 1},
                                      {Qt::Key_Left, 1},
                                      {Qt::Key_End, 18},
                                      {Qt::Key_Right, 18}}) {
    QTest::keyClick(window().focusWidget(), key);
    EXPECT_EQ(window().focusWidget(), window().Toolbar1->Button(position)) << key;
  }
  auto* next = window().Toolbar1->Button(4);
  next->setFocus();
  QTest::keyClick(next, Qt::Key_Space);
  EXPECT_EQ(text().accessibleName().toStdString(), "Page 1, " + face().lblDate->text().toStdString());
  QString said;
  for (const QWidget* window : QApplication::topLevelWidgets())
    if (window->objectName() == u"Notification") said = window->accessibleName();
  EXPECT_EQ(said, text().accessibleName());
  EXPECT_EQ(window().focusWidget(), next) << "to be pressed once more";
}

}  // namespace
