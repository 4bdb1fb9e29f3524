// The window itself: its measures and its toolbar.
#include "tests/editor/OpenBook.h"

namespace {

QByteArray Bytes(const QImage& picture) {
  return {reinterpret_cast<const char*>(picture.constBits()), picture.sizeInBytes()};
}

class Window : public fixture::OpenBook {
 protected:
  Window() { Open(AddJournal({"cover", "one"})); }
  PageFace& face() { return *window().face; }
  Toolbar& bar() { return *window().Toolbar1; }
  // All eighteen; "-" for an empty one.
  QString Captions() {
    QStringList captions;
    for (int position = 1; position <= bar().Count(); ++position)
      captions += bar().Caption(position).isEmpty() ? u"-"_qs : bar().Caption(position);
    return captions.join(u' ');
  }
};

TEST_F(Window, GrowsAroundLabelsThatStayAndTooSmallKeepsEachFormerMeasure) {
  EXPECT_EQ(bar().geometry(), QRect(2, 2, 560, 38));
  const struct {
    QSize window, text;
  } cases[] = {{{565, 648}, {499, 590}}, {{1000, 700}, {934, 642}},
               {{67, 500}, {1, 442}},    {{66, 400}, {1, 342}},  // 990 twips leave -1 for the width
               {{300, 58}, {234, 342}},  {{30, 20}, {234, 342}}};
  for (const auto& [size, page] : cases) {
    window().resize(size);
    QCoreApplication::processEvents();
    EXPECT_EQ(text().geometry(), QRect(QPoint(66, 58), page)) << size.width();
    EXPECT_EQ(face().picTop->geometry(), QRect(0, 0, size.width(), 58));
    EXPECT_EQ(face().picBinding->geometry(), QRect(0, 58, 66, std::max(0, size.height() - 58)));
    EXPECT_EQ(face().lblDate->pos(), QPoint(5, 42));
    EXPECT_EQ(face().lblPageNum1->geometry().right(), 560);
  }
  EXPECT_TRUE(answers.messages.empty());
}

TEST_F(Window, AClickOnAButtonLeavesTheKeyboardInThePageAndTabReachesIt) {
  Press("btnNext");
  EXPECT_EQ(QApplication::focusWidget(), &text());
  QToolButton* back = bar().Button(u"btnBack"_qs);
  back->setFocus(Qt::TabFocusReason);
  QTest::keyClick(back, Qt::Key_Space);
  EXPECT_EQ(CurrentPage, 0);
}

TEST_F(Window, EveryToolbarButtonHasAPictureOfItsOwnAndAnotherUnderTheMouse) {
  QSet<QByteArray> pictures;
  for (const auto* button : bar().findChildren<QToolButton*>())
    for (const auto mode : {QIcon::Normal, QIcon::Active})
      pictures += Bytes(button->icon().pixmap(QSize(16, 16), 1, mode).toImage());
  EXPECT_EQ(pictures.size(), 2 * 14);
}

TEST_F(Window, TheBindingGoesDownATallWindowInTheColourOfThePaper) {
  window().resize(565, 2200);
  face().picBinding->SetBackColor(0xC0FFFF);
  const QImage binding = face().picBinding->grab().toImage();
  EXPECT_EQ(Bytes(binding.copy(0, 0, 66, 1000)), Bytes(binding.copy(0, 1000, 66, 1000)));
  const QColor besideIt = binding.pixelColor(64, 500);
  EXPECT_EQ(besideIt, QColor(0xFF, 0xFF, 0xC0));
  int paper = 0;
  for (int x = 0; x < 51; ++x) paper += binding.pixelColor(x, 1500) == besideIt;
  EXPECT_GT(paper, 20) << "the shades hide the paper";
}

TEST_F(Window, TogglingTheCaptionsGoesByTheOldPositions) {
  const QRect page = text().geometry();
  EXPECT_EQ(Captions(), u"New Title Back Next Last - Print Index Cal - Emote Pic Font - Opt Prop - Help");
  for (int toggle = 1; toggle <= 3; ++toggle) {
    const bool without = toggle != 2;
    window().SwitchToolbarCaptions();
    EXPECT_EQ(Captions(),
              without ? u"- - - - - - - - - - - Pic Font - Opt Prop - Help"
                      : u"New Title Back Next Last - Font Pic - Options Prop Pic Font - Opt Prop - Help");
    EXPECT_EQ(bar().Button(1)->accessibleName(), without ? u"Create new page" : u"New");
    EXPECT_EQ(face().picTop->height(), without ? 25 : 80);
    EXPECT_EQ(face().picBinding->y(), without ? 25 : 80);
    EXPECT_EQ(face().childAt(300, 70), without ? static_cast<QWidget*>(text().viewport()) : face().picTop);
  }
  EXPECT_EQ(text().geometry(), page);
  EXPECT_EQ(window().grab().toImage().pixelColor(300, 40), QColor(0x80, 0x80, 0x80));
}

}  // namespace
