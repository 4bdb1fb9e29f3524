// Adding a picture, from the file dialog to the row, as a person clicks it.
#include <QtCore/QTimer>
#include <QtGui/QImage>

#include "pictures/AddPicture.h"
#include "pictures/PictureSlots.h"
#include "pictures/frmAddPicture.h"
#include "tests/support/Windows.h"

namespace {

using fixture::Texts;

class AddPicture : public fixture::Windows {
 protected:
  AddPicture() {
    page.resize(565, 648);
    Journals.resize(2);
    JournalCount = CurrentJournal = 1;
    Journals[1].Name = "Summer";
    Journals[1].FileName = "j00001.tqf";
    Journals[1].PaperColor = 0x80FFFF;
    CurrentPage = 2;
    QDir(QString::fromStdString(folder.path())).mkdir(u"frames"_qs);
    photo = Picture("photo.png", {640, 480}, Qt::blue);
    lace = Picture("frames/Lace.gif", {20, 20}, Qt::red);
  }

  std::string Picture(const char* name, QSize size, QColor color) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    EXPECT_TRUE(image.save(QString::fromStdString(folder.PathOf(name)), "PNG"));
    return folder.PathOf(name);
  }
  // Chooses the file, does that in frmAddPicture and closes it. Whether it opened.
  bool Add(const std::string& path, const std::function<void()>& inTheDialog) {
    bool opened = false;
    chooser.file = path;
    QTimer::singleShot(0, &page, [&] {
      opened = dialog().isVisible();
      if (opened) inTheDialog();
      dialog().CloseBox();
    });
    StartAddPicture();
    QCoreApplication::processEvents();
    return opened;
  }
  bool Insert(const std::string& path) {
    return Add(path, [] { Click(dialog().cmdOK); });
  }
  static frmAddPicture& dialog() { return look::The<frmAddPicture>(); }
  static std::string Scale() { return dialog().lblScale->text().toStdString(); }
  static QColor At(int x, int y) { return dialog().picResize2->grab().toImage().pixelColor(x, y); }
  static std::string Entries() {
    QStringList texts;
    for (int i = 0; i < dialog().List1->count(); ++i) texts += dialog().List1->item(i)->text();
    return texts.join(u'|').toStdString();
  }

  QWidget page;
  PictureSlots* slots_ = new PictureSlots(&page);
  std::string photo;
  std::string lace;
};

TEST_F(AddPicture, MeasuresTwiceRoundedFromTheSettledFigure) {
  Texts seen;
  const auto note = [&seen] {
    seen.push_back(Scale().substr(7) + " " + std::to_string(AddWidth) + "x" + std::to_string(AddHeight));
    EXPECT_EQ(dialog().picResize2->size(), QSize(AddWidth, AddHeight));
  };
  Add(photo, [&] {
    note();
    const frmAddPicture& d = dialog();
    for (auto* button : {d.cmdResizeFactor10, d.cmdResizeFactor25, d.cmdResizeFactor50, d.cmdResizeFactor75,
                         d.cmdResizeFactor100, d.cmdResizeFactor200, d.cmdResizeFactorUP})
      Click(button), note();
  });
  EXPECT_EQ(seen, (Texts{"25% 282x212", "10% 113x85", "25% 282x212", "50% 564x424", "75% 847x635",
                         "100% 1129x847", "200% 2258x1694", "201% 2269x1702"}));
  EXPECT_EQ(chooser.asked.at(0).filters.at(0).patterns, "*.GIF;*.JPG;*.BMP");
  EXPECT_EQ(chooser.asked.at(0).filters.at(4).description, "All Files (*.*)");
  EXPECT_TRUE(Pictures.empty());
}

TEST_F(AddPicture, GetsSmallerTwentyFourTimes) {
  Add(photo, [] {
    for (int press = 1; press <= 26; ++press) {
      const double scale = AddScale;
      Click(dialog().cmdResizeFactorDN);
      EXPECT_EQ(AddScale < scale, press <= 24) << press;
    }
    EXPECT_LT(AddScale, 0.01);
    EXPECT_EQ(Scale(), "Scale: 1%");
  });
}

// One pixel of paper above and beside the picture, and nothing but paper beyond the surface's edge.
TEST_F(AddPicture, ShowsThePreviewOnThePapersColour) {
  Add(photo, [] {
    const QColor paper(0xFF, 0xFF, 0x80);
    for (const QPoint place : {QPoint(0, 100), QPoint(100, 0)}) EXPECT_EQ(At(place.x(), place.y()), paper);
    for (const int place : {1, 208}) EXPECT_EQ(At(place, place), QColor(Qt::blue));
    Click(dialog().cmdResizeFactor100);
    EXPECT_EQ(At(999, 500), QColor(Qt::blue));
    EXPECT_EQ(At(1001, 500), paper);
  });
}

TEST_F(AddPicture, ListsTheFramesAfreshAtEachOpening) {
  Picture("frames/wood.GIF", {20, 20}, Qt::red);
  folder.Write("frames/Lace.svg", "");
  EXPECT_TRUE(Add(photo, [] {
    EXPECT_EQ(Entries(), "No Frame|Lace|wood");
    dialog().List1->setCurrentRow(2);
    EXPECT_EQ(AddFrameIndex, 2);
    EXPECT_EQ(At(9, 9), QColor(Qt::red));
  }));
  folder.Write("frames/note.gif", "no picture");
  EXPECT_TRUE(Add(photo, [this] {
    EXPECT_EQ(AddFrameIndex, 0);
    EXPECT_EQ(At(9, 9), QColor(Qt::blue));
    dialog().List1->setCurrentRow(2);
    EXPECT_NE(answers.last().find("frames/note.gif"), std::string::npos);
    EXPECT_EQ(dialog().List1->currentRow(), 0);
  }));
  QDir(QString::fromStdString(folder.PathOf("frames"))).removeRecursively();
  EXPECT_TRUE(Add(photo, [this] {
    EXPECT_EQ(Entries(), "No Frame");
    EXPECT_EQ(answers.last().find("Path not found: " + folder.PathOf("frames")), 0U);
  }));
}

TEST_F(AddPicture, LaysPicturesInAColumnUntilThePageIsFull) {
  Add(photo, [] {
    dialog().List1->setCurrentRow(1);
    Click(dialog().cmdOK);
  });
  const PagePicture first{photo, 282, 212, 0, {}, 1, lace, 2, "Summer", "j00001.tqf", 42, 400, False};
  ASSERT_EQ(Pictures, (std::vector<PagePicture>{{}, first}));
  EXPECT_FALSE(slots_->picDisplayPics[0]->isHidden());
  EXPECT_TRUE(folder.Exists("tqpics.bin"));

  Pictures[1].Top = 5000;  // dragged: only the heights are looked at
  std::vector<std::int32_t> tops;
  for (int i = 2; i <= 7; ++i) {
    EXPECT_TRUE(Insert(photo)) << i;
    tops.push_back(Pictures.back().Top);
  }
  EXPECT_EQ(tops, (std::vector<std::int32_t>{228, 456, 40, 268, 496, 40}));

  Pictures[3].PictureFile = "/gone.jpg";  // counts all the same
  chooser.asked.clear();
  EXPECT_FALSE(Insert(photo));
  EXPECT_EQ(answers.texts(), Texts{"Maximum pictures for this page."});
  EXPECT_TRUE(chooser.asked.empty());
  Pictures[3].Deleted = True;
  EXPECT_TRUE(Insert(photo));
}

TEST_F(AddPicture, StoresNothingThatCannotBeShown) {
  StartAddPicture();  // cancelled
  EXPECT_TRUE(answers.messages.empty());
  folder.Write("letter.jpg", "Dear diary");
  EXPECT_FALSE(Insert(folder.PathOf("letter.jpg")));
  EXPECT_NE(answers.last().find("letter.jpg"), std::string::npos);
  EXPECT_TRUE(Add(photo, [this] {
    QFile::remove(QString::fromStdString(photo));
    Click(dialog().cmdOK);
  }));
  EXPECT_EQ(answers.last(), "File not found: " + photo);
  EXPECT_EQ(PictureCount, 0);
  EXPECT_FALSE(folder.Exists("tqpics.bin"));
}

}  // namespace
