// The pictures of a page, as they show and as a mouse handles them. The events come from the window, as the
// display system's do, so that the toolkit itself decides who gets them.
#include <QtGui/QImage>
#include <QtGui/QWindow>

#include "pictures/PictureSlots.h"
#include "pictures/modPictures.h"
#include "store/PictureStore.h"
#include "tests/support/Windows.h"

namespace {

using platform::FailureKind;

// What lies beneath the pictures, and notes what reaches it.
class Text : public QWidget {
 public:
  using QWidget::QWidget;
  int events = 0;

 protected:
  bool event(QEvent* event) override {
    const auto type = event->type();
    events += type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
              type == QEvent::Wheel || type == QEvent::MouseButtonDblClick || type == QEvent::MouseMove;
    return QWidget::event(event);
  }
};

class Slots : public fixture::Windows {
 protected:
  Slots() {
    Journals.resize(2);
    JournalCount = CurrentJournal = 1;
    Journals[1].FileName = "j1";
    CurrentPage = 2;
    Pictures.resize(1);
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(Qt::blue);
    photo = folder.PathOf("photo.png");
    EXPECT_TRUE(image.save(QString::fromStdString(photo)));
    page.resize(565, 648);
    page.move(100, 120);
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
  // The rows on show, slot by slot.
  std::string Rows() {
    std::string rows;
    for (std::size_t slot = 0; slot < PictureSlots::Count; ++slot)
      if (!pictures->picDisplayPics[slot]->isHidden()) rows += std::to_string(pictures->RowOf(slot)) + " ";
    return rows;
  }
  std::string Handles() {
    std::string shown;
    for (std::size_t slot = 0; slot < PictureSlots::Count; ++slot)
      shown += pictures->imgController[slot]->isHidden() ? "-" : "H";
    return shown;
  }
  // Places are pixels of the page.
  void Press(QPoint at, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mousePress(page.windowHandle(), button, {}, at);
  }
  void Release(QPoint at, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseRelease(page.windowHandle(), button, {}, at);
  }
  void Click(QPoint at, Qt::MouseButton button = Qt::LeftButton) {
    Press(at, button);
    Release(at, button);
  }
  void Move(QPoint at) {
    QCursor::setPos(page.mapToGlobal(at));
    QTest::mouseMove(page.windowHandle(), at);
    QCoreApplication::processEvents();
  }
  // The rows in the file, as "left,top ".
  std::string Saved() {
    std::string places;
    const auto rows = store::DecodePictureStore(folder.Read("tqpics.bin")).rows;
    for (std::size_t row = 1; row + 1 < rows.size(); ++row)
      places += std::to_string(rows[row].Left) + "," + std::to_string(rows[row].Top) + " ";
    return places;
  }

  QWidget page;
  Text* text = new Text(&page);
  PictureSlots* pictures = new PictureSlots(&page);
  std::string photo;
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
  EXPECT_EQ(Rows(), "1 5 8 ");
  EXPECT_EQ(pictures->imgController[1]->property("Tag").toString(), u"5");
  HidePagePictures();
  EXPECT_EQ(Rows(), "");
}

TEST_F(Slots, StacksPhotographFrameAndHandle) {
  QImage frame(100, 80, QImage::Format_ARGB32);
  frame.fill(Qt::transparent);
  frame.setPixelColor(0, 40, Qt::red);
  const std::string oval = folder.PathOf("oval.png");
  ASSERT_TRUE(frame.save(QString::fromStdString(oval)));
  for (const auto& [index, file] : {std::pair{2, oval}, {0, oval}, {3, folder.PathOf("gone.gif")}}) {
    PagePicture& row = Add(photo, {30, -20, 100, 80});
    row.FrameIndex = index;
    row.FrameFile = file;
  }
  ShowPagePictures();
  EXPECT_EQ(pictures->picDisplayPics[0]->geometry(), QRect(30, -20, 100, 80));
  EXPECT_EQ(pictures->imgPhoto[0]->geometry(), QRect(0, 0, 100, 80));
  EXPECT_EQ(pictures->imgFrame[0]->geometry(), QRect(1, 0, 100, 80));
  EXPECT_EQ(pictures->imgController[0]->geometry(), QRect(0, 1, 100, 20));
  const QImage shown = pictures->picDisplayPics[0]->grab().toImage();
  EXPECT_EQ(shown.pixelColor(1, 40), QColor(Qt::red)) << "one pixel in from the left";
  EXPECT_EQ(shown.pixelColor(50, 40), QColor(Qt::blue)) << "the photograph, through the frame";
  EXPECT_TRUE(pictures->imgFrame[1]->isHidden());
  EXPECT_EQ(Pictures[2].FrameFile, oval);
  EXPECT_EQ(Pictures[3].FrameFile, "") << "a frame that is gone is dropped for good";
  EXPECT_EQ(Pictures[3].FrameIndex, 0);
}

TEST_F(Slots, WhatCannotBeShownIsToldAndTheOthersShow) {
  folder.Write("no picture.png", "text");
  Add(folder.PathOf("no picture.png"));
  PagePicture& framed = Add(photo);
  framed.FrameIndex = 1;
  framed.FrameFile = folder.PathOf("no picture.png");
  fixture::ExpectFailure(FailureKind::InvalidPicture, "no picture.png", ShowPagePictures);
  EXPECT_EQ(Rows(), "2 ");
  EXPECT_TRUE(pictures->imgFrame[0]->isHidden());
  for (int row = 3; row <= 9; ++row) Add(photo);
  fixture::ExpectFailure(FailureKind::SubscriptOutOfRange, "", ShowPagePictures);
  EXPECT_EQ(Rows(), "2 3 4 5 6 7 8 ");
  ShowPagePicturesOrTell();
  EXPECT_EQ(answers.last(), "Subscript out of range");
}

TEST_F(Slots, AClickSelectsAndTheHandleStaysInItsSlot) {
  Add(photo, {0, 0, 50, 50});
  Add(photo, {100, 0, 50, 50});
  ShowPagePictures();
  EXPECT_EQ(Handles(), "-------");
  Click({25, 40});
  EXPECT_EQ(Handles(), "H------");
  Click({125, 40});
  EXPECT_EQ(Handles(), "-H-----");
  Click({25, 40}, Qt::RightButton);
  Press({25, 40});
  Release({300, 300});
  EXPECT_EQ(Handles(), "-H-----") << "neither was a click on the picture";
  HidePagePictures();
  ShowPagePictures();
  EXPECT_EQ(Handles(), "-H-----");
  EXPECT_EQ(text->events, 0);
  EXPECT_FALSE(folder.Exists("tqpics.bin"));
}

TEST_F(Slots, ADragGoesByThePointerAndTheWindowsCornerWithoutLimits) {
  Add(photo, {30, 40, 50, 50});
  ShowPagePictures();
  Click({40, 80});
  Click({50, 50}, Qt::RightButton);
  EXPECT_EQ(Saved(), "30,40 ") << "a plain click of any button on the handle saves";
  Press({50, 50});
  EXPECT_EQ(pictures->DragSlot, 1);
  const QPoint border = page.mapToGlobal(QPoint()) - page.frameGeometry().topLeft() - QPoint(0, 32);
  for (const QPoint at : {QPoint(200, 210), QPoint(900, -300), QPoint(-70, 700)}) {
    Move(at);
    EXPECT_EQ(pictures->picDisplayPics[0]->geometry(), QRect(at + border, QSize(50, 50)));
    EXPECT_EQ(QPoint(Pictures[1].Left, Pictures[1].Top), at + border);
  }
  EXPECT_EQ(Saved(), "30,40 ") << "the file changes when the button goes up";
  Release({-70, 700});
  EXPECT_EQ(pictures->DragSlot, 0);
  const QPoint left = QPoint(-70, 700) + border;
  EXPECT_EQ(Saved(), std::to_string(left.x()) + "," + std::to_string(left.y()) + " ");
  EXPECT_EQ(text->events, 0);
}

TEST_F(Slots, ADoubleClickRemovesAndItsEndSavesWhoeverLiesBeneath) {
  for (const int left : {30, 330}) Add(photo, {left, 40, 50, 50});
  ShowPagePictures();
  Click({40, 80});
  const int interval = QApplication::doubleClickInterval();
  QApplication::setDoubleClickInterval(10000);  // simulated clicks lie half a second apart
  for (const int row : {1, 2}) {
    const QPoint at(row == 1 ? 50 : 350, 50);
    Click(at);
    Press(at);
    EXPECT_EQ(Pictures[static_cast<std::size_t>(row)].Deleted, True);
    EXPECT_EQ(Rows(), row == 1 ? "2 " : "") << "the next picture comes into the slot, with its handle";
    EXPECT_EQ(Saved(), row == 1 ? "30,40 330,40 " : "330,40 ") << "not yet";
    Release(at);
    EXPECT_EQ(Saved(), row == 1 ? "330,40 " : "");
  }
  QApplication::setDoubleClickInterval(interval);
  EXPECT_EQ(text->events, 0);
  Click({50, 50});
  EXPECT_EQ(text->events, 2) << "the mouse is free again";
}

}  // namespace
