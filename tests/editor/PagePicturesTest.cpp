// The pictures of a page and the page: what shows them, and what takes them away.
#include <QtGui/QImage>
#include <QtWidgets/QScrollBar>

#include "tests/editor/OpenBook.h"

namespace {

class PagePictures : public fixture::OpenBook {
 protected:
  PagePictures() {
    Pictures.resize(1);
    QImage image(4, 4, QImage::Format_RGB32);
    photo = folder.PathOf("photo.png");
    EXPECT_TRUE(image.save(QString::fromStdString(photo)));
  }
  void Lay(std::int32_t page, const std::string& file) {
    ++PictureCount;
    Pictures.push_back({file, 200, 150, 0, "", 0, "", page, "", FileOf(1), 300, 200, False});
  }
  int PicturesShown() {
    return static_cast<int>(std::count_if(pictures().picDisplayPics.begin(), pictures().picDisplayPics.end(),
                                          [](const QWidget* box) { return !box->isHidden(); }));
  }
  PictureSlots& pictures() { return *window().face->pictures; }

  std::string photo;
};

TEST_F(PagePictures, ComeWithTheirPageAndGoWithANewOneAndWithTheJournal) {
  Lay(0, photo);
  Lay(0, photo);
  Lay(1, photo);
  Open(AddJournal({"cover", ""}));
  EXPECT_EQ(PicturesShown(), 2);
  GoNextPage();
  EXPECT_EQ(PicturesShown(), 1) << "of an empty page, too";
  answers.yes = 1;
  GoNextPage();
  EXPECT_EQ(PicturesShown(), 0);
  GoFirstPage();
  answers.yes = 1;
  AddNewPage();
  EXPECT_EQ(PicturesShown(), 0);
  GoFirstPage();
  window().close();
  EXPECT_EQ(PicturesShown(), 0);
  Load(1);
  EXPECT_EQ(PicturesShown(), 2);
  Load(AddJournal());
  EXPECT_EQ(PicturesShown(), 0) << "a journal without a file follows one that was never shown";
}

TEST_F(PagePictures, OneThatCannotBeShownIsToldByTheGuardAndTheTextComesAllTheSame) {
  folder.Write("text.png", "text");
  Lay(0, folder.PathOf("text.png"));
  Lay(0, photo);
  Open(AddJournal({"cover", "one"}));
  ASSERT_EQ(answers.messages.size(), 1u);
  EXPECT_EQ(answers.last().find("Page Decryption Error:"), 0u);
  EXPECT_NE(answers.last().find("text.png"), std::string::npos);
  EXPECT_EQ(PicturesShown(), 1);
  EXPECT_EQ(Text(), "cover");
}

TEST_F(PagePictures, APressInTheTextHidesTheHandleAndTheWheelOverAPictureTurnsTheText) {
  Lay(0, photo);
  std::string lines;
  for (int line = 0; line < 100; ++line) lines += "line\\par ";
  Open(AddJournal({lines, "one"}));
  QTest::mouseClick(pictures().imgPhoto[0], Qt::LeftButton);
  EXPECT_TRUE(pictures().imgController[0]->isVisible());
  QTest::mousePress(text().viewport(), Qt::RightButton, {}, {5, 5});
  EXPECT_FALSE(pictures().imgController[0]->isVisible());
  text().verticalScrollBar()->setValue(0);
  QWheelEvent turn({250, 350}, window().mapToGlobal(QPointF(250, 350)), {}, {0, -120}, {}, {},
                   Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(window().windowHandle(), &turn);
  EXPECT_GT(text().verticalScrollBar()->value(), 0);
  EXPECT_EQ(PageDirty, False);
}

}  // namespace
