// The pictures of a page, as they show and as a mouse handles them. The events come from the window, as the
// display system's do, so that the toolkit itself decides who gets them.
#include "look/PictureBox.h"
#include "pictures/DragPlace.h"
#include "pictures/StretchedImage.h"
#include "store/PictureStore.h"
#include "tests/pictures/PicturePage.h"

namespace {

// What lies beneath the pictures, and counts what reaches it.
struct Text : QWidget {
  using QWidget::QWidget;
  bool event(QEvent* event) override {
    events += event->isPointerEvent() && event->type() != QEvent::Enter;
    return QWidget::event(event);
  }
  int events = 0;
};

class Slots : public PicturePage {
 protected:
  Slots() {
    Pictures.resize(1);
    text->resize(page.size());
    text->lower();
    page.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&page));
  }
  PagePicture& Add(const std::string& file, QRect place = {10, 20, 100, 80}) {
    ++PictureCount;
    Pictures.push_back({file, place.width(), place.height(), 0, "", 0, "", CurrentPage, "", "j1", place.y(),
                        place.x(), False});
    return Pictures.back();
  }
  // The rows on show, slot by slot, those of visible handles in brackets.
  std::string Rows() {
    std::string rows;
    for (std::size_t slot = 0; slot < PictureSlots::Count; ++slot) {
      const std::string row = std::to_string(pictures->RowOf(slot));
      if (pictures->picDisplayPics[slot]->isHidden()) continue;
      rows += pictures->imgController[slot]->isHidden() ? row : "[" + row + "]";
    }
    return rows;
  }
  // Places are pixels of the page.
  void Press(QPoint at) { QTest::mousePress(page.windowHandle(), Qt::LeftButton, {}, at); }
  void Release(QPoint at) { QTest::mouseRelease(page.windowHandle(), Qt::LeftButton, {}, at); }
  void Click(QPoint at, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(page.windowHandle(), button, {}, at);
  }
  static std::string Place(QPoint at) { return std::to_string(at.x()) + "," + std::to_string(at.y()) + " "; }
  // The rows in the file, as "left,top ".
  std::string Saved() {
    std::string places;
    const auto rows = store::DecodePictureStore(folder.Read("tqpics.bin")).rows;
    for (std::size_t row = 1; row + 1 < rows.size(); ++row) places += Place({rows[row].Left, rows[row].Top});
    return places;
  }

  Text* text = new Text(&page);
};

TEST_F(Slots, DealsOutTheRowsOfThePageWhoseFilesAreThere) {
  Add(photo);
  Add(photo).PageNumber = 1;
  Add(photo).JournalFile = "j2";
  Add(photo).Deleted = True;
  Add(photo).Deleted = 1;  // only -1 is removed
  Add(folder.PathOf("gone.png"));
  Add(folder.path());
  Add(photo, {-2000000000, 2000000000, 2000000000, -5});
  ShowPagePictures();
  EXPECT_EQ(Rows(), "158");
}

TEST_F(Slots, StacksPhotographFrameAndHandleOfWhatCanBeShown) {
  const std::string oval = Image("oval.png", Qt::transparent, Qt::red), noPicture = folder.PathOf("text.png");
  folder.Write("text.png", "text");
  for (const auto& [index, frame] :
       {std::pair{2, oval}, {0, oval}, {3, folder.PathOf("gone.gif")}, {1, noPicture}}) {
    PagePicture& row = Add(photo, {30, -20, 100, 80});
    row.FrameIndex = index;
    row.FrameFile = frame;
  }
  Add(noPicture);
  for (int row = 6; row <= 9; ++row) Add(photo);
  ShowPagePicturesOrTell();
  EXPECT_EQ(answers.last(), "Subscript out of range");
  EXPECT_EQ(Rows(), "1234678");
  Pictures.resize(7);
  PictureCount = 6;
  fixture::ExpectFailure(platform::FailureKind::InvalidPicture, "text.png", ShowPagePictures);
  EXPECT_EQ(Rows(), "12346");
  EXPECT_EQ(pictures->picDisplayPics[0]->geometry(), QRect(30, -20, 100, 80));
  EXPECT_EQ(pictures->imgController[0]->geometry(), QRect(0, 1, 100, 20));
  const QImage shown = pictures->picDisplayPics[0]->grab().toImage();
  EXPECT_EQ(shown.pixelColor(0, 40), QColor(Qt::blue)) << "the frame begins one pixel in from the left";
  EXPECT_EQ(shown.pixelColor(1, 40), QColor(Qt::red));
  EXPECT_EQ(shown.pixelColor(50, 40), QColor(Qt::blue)) << "the photograph, through the frame";
  for (const std::size_t slot : {1U, 2U, 3U}) EXPECT_TRUE(pictures->imgFrame[slot]->isHidden()) << slot;
  EXPECT_EQ(Pictures[3].FrameFile, "") << "a frame that is gone is dropped for good";
}

TEST_F(Slots, AClickSelectsAndTheHandleStaysInItsSlot) {
  Add(photo, {0, 0, 50, 50});
  Add(photo, {100, 0, 50, 50});
  ShowPagePictures();
  Click({25, 40});
  EXPECT_EQ(Rows(), "[1]2");
  Click({125, 40});
  Click({25, 40}, Qt::RightButton);
  Press({25, 40});
  Release({300, 300});
  ShowPagePictures();
  EXPECT_EQ(Rows(), "1[2]") << "neither was a click on the picture, nor does the page's turning take it away";
  EXPECT_EQ(text->events, 0);
  EXPECT_FALSE(folder.Exists("tqpics.bin"));
}

// Frames of a window whose client area begins at 100,200: with a title bar, with a border alone, with
// nothing.
TEST(DragPlace, AllowsForATitleBarWhereThereIsOne) {
  const QRect client(100, 200, 565, 648);
  for (const auto& [margins, place] : {std::pair{QMargins(4, 30, 4, 4), QPoint(54, 68)},
                                       {{0, 24, 0, 0}, {50, 62}},
                                       {{1, 10, 1, 1}, {51, 50}},
                                       {{1, 60, 1, 1}, {51, 98}},
                                       {{2, 2, 2, 2}, {50, 69}},
                                       {{}, {50, 69}}})
    EXPECT_EQ(pictures::DragPlace({150, 270}, client.marginsAdded(margins), client), place) << margins.top();
}

TEST_F(Slots, ADragGoesByThePointerAndTheWindowsCornerWithoutLimits) {
  Add(photo, {30, 40, 50, 50});
  ShowPagePictures();
  Click({40, 80});
  Click({50, 50}, Qt::RightButton);
  EXPECT_EQ(Saved(), "30,40 ") << "a plain click of any button on the handle saves";
  Press({50, 50});
  const QPoint border(0, -1);  // the handle's upper edge: no title bar here
  for (const QPoint at : {QPoint(900, -300), QPoint(-70, 700)}) {
    QCursor::setPos(page.mapToGlobal(at));
    QTest::mouseMove(page.windowHandle(), at);
    QCoreApplication::processEvents();
    EXPECT_EQ(pictures->picDisplayPics[0]->geometry(), QRect(at + border, QSize(50, 50)));
  }
  EXPECT_EQ(Saved(), "30,40 ") << "the file changes when the button goes up";
  Release({-70, 700});
  EXPECT_EQ(Saved(), Place(QPoint(-70, 700) + border));
  EXPECT_EQ(text->events, 0);
}

TEST_F(Slots, ADoubleClickRemovesAndItsEndSavesWhoeverLiesBeneath) {
  for (const int left : {30, 330}) Add(photo, {left, 40, 50, 50});
  ShowPagePictures();
  Click({40, 80});
  const int interval = QApplication::doubleClickInterval();
  QApplication::setDoubleClickInterval(10000);  // simulated clicks lie half a second apart
  for (const auto& [handle, rows, before, after] :
       {std::tuple{QPoint(50, 50), "[2]", "30,40 330,40 ", "330,40 "},
        {QPoint(350, 50), "", "330,40 ", ""}}) {
    Click(handle);
    Press(handle);
    EXPECT_EQ(Rows(), rows) << "the next picture comes into the slot, with its handle";
    EXPECT_EQ(Saved(), before) << "not yet";
    Release(handle);
    EXPECT_EQ(Saved(), after);
  }
  QApplication::setDoubleClickInterval(interval);
  EXPECT_EQ(text->events, 0);
  Click({50, 50});
  EXPECT_EQ(text->events, 2) << "the mouse is free again";
}

TEST_F(Slots, KeysMoveAPictureAndTakeItOffAndEachChangeIsSaved) {
  Add(photo, {30, 40, 50, 50});
  Add(photo, {100, 0, 50, 50});
  ShowPagePictures();
  int left = 0;
  QObject::connect(pictures, &PictureSlots::Left, text, [&] { text->setFocus(), ++left; });
  const std::vector<QWidget*> stops = pictures->Stops();
  ASSERT_EQ(stops.size(), 2U);
  stops[1]->setFocus();
  EXPECT_EQ(Rows(), "1[2]");
  QTest::keyPress(stops[1], Qt::Key_Left, Qt::ControlModifier);
  EXPECT_FALSE(folder.Exists("tqpics.bin")) << "saved when the key is up";
  QTest::keyRelease(stops[1], Qt::Key_Left, Qt::ControlModifier);
  QTest::keyClick(stops[1], Qt::Key_Down);
  EXPECT_EQ(Saved(), "30,40 99,8 ");
  auto* spoken = QAccessible::queryAccessibleInterface(stops[1]);
  EXPECT_EQ(spoken->role(), QAccessible::Graphic);
  EXPECT_EQ(spoken->text(QAccessible::Name), u"Picture 2: photo.png");
  EXPECT_EQ(spoken->text(QAccessible::Description), u"99 pixels from the left, 8 from the top");
  QTest::keyClick(stops[1], Qt::Key_Escape);
  EXPECT_EQ(Rows(), "12");
  Click({40, 80});
  EXPECT_TRUE(text->hasFocus()) << "a click leaves the keys there";
  stops[1]->setFocus();
  Click({40, 80});
  EXPECT_EQ(Rows(), "[1]2") << "the keys are where the handle is";
  EXPECT_TRUE(stops[0]->hasFocus());
  QTest::keyClick(stops[0], Qt::Key_Delete);
  QCoreApplication::processEvents();
  EXPECT_EQ(Rows() + Saved(), "299,8 ");
  EXPECT_TRUE(text->hasFocus() && left >= 2);
}

}  // namespace
