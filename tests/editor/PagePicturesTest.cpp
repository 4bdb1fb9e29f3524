// The pictures of a page and the page: what shows them, and what takes them away.
#include "look/PictureBox.h"
#include "pictures/PictureSlots.h"
#include "pictures/StretchedImage.h"
#include "tests/editor/OpenBook.h"

namespace {

class PagePictures : public fixture::OpenBook {
 protected:
  PagePictures() {
    Pictures.resize(1);
    folder.WritePicture("photo.png");
  }
  void Lay(std::int32_t page, const std::string& file = "photo.png") {
    ++PictureCount;
    Pictures.push_back({folder.PathOf(file), 200, 150, 0, "", 0, "", page, "", FileOf(1), 300, 200, False});
  }
  auto PicturesShown() {
    return std::count_if(pictures().picDisplayPics.begin(), pictures().picDisplayPics.end(),
                         [](const QWidget* box) { return !box->isHidden(); });
  }
  PictureSlots& pictures() { return *window().face->pictures; }
};

TEST_F(PagePictures, ComeWithTheirPageAndGoWithANewOneAndWithTheJournal) {
  for (const std::int32_t page : {0, 0, 1}) Lay(page);
  Begin({"cover", ""});
  EXPECT_EQ(PicturesShown(), 2);
  QTest::mouseClick(pictures().imgPhoto[0], Qt::LeftButton);
  EXPECT_TRUE(pictures().imgController[0]->isVisible());
  QTest::mousePress(text().viewport(), Qt::RightButton, {}, {5, 5});
  EXPECT_FALSE(pictures().imgController[0]->isVisible());
  GoNextPage();
  EXPECT_EQ(PicturesShown(), 1) << "of an empty page, too";
  answers.yes = 1;
  GoNextPage();
  EXPECT_EQ(PicturesShown(), 0);
  GoFirstPage();
  window().close();
  EXPECT_EQ(PicturesShown(), 0);
  EXPECT_TRUE(pictures().imgPhoto[0]->Picture().isNull())
      << "nobody can look at it behind the closed journal";
  Load(1);
  Load(AddJournal());
  EXPECT_EQ(PicturesShown(), 0) << "a journal without a file follows one that was never shown";
}

TEST_F(PagePictures, OneThatCannotBeShownIsToldByTheGuardAndTheTextComesAllTheSame) {
  folder.Write("text.png", "text");
  Lay(0, "text.png");
  Lay(0);
  Begin({"cover", "one"});
  EXPECT_EQ(answers.last().find("Page Decryption Error:"), 0u);
  EXPECT_NE(answers.last().find("text.png"), std::string::npos);
  EXPECT_EQ(PicturesShown(), 1);
  EXPECT_EQ(Text(), "cover");
}

}  // namespace
