// Adding a picture, from the file dialog to the row, as a person clicks it.
#include "pictures/AddPicture.h"
#include "pictures/PictureToAdd.h"
#include "pictures/frmAddPicture.h"
#include "platform/files/InputFile.h"
#include "tests/pictures/PicturePage.h"
#include "tests/support/Photograph.h"

namespace {

class AddPicture : public PicturePage {
 protected:
  AddPicture() { QDir(QString::fromStdString(folder.path())).mkdir(u"frames"_qs); }
  // Chooses the file, does that in frmAddPicture and closes it. Whether it opened.
  bool Add(const std::string& path, const std::function<void(frmAddPicture&)>& act) {
    bool opened = false;
    chooser.file = path;
    QTimer::singleShot(0, &page, [&] {
      auto& dialog = look::The<frmAddPicture>();
      EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog.isVisible() || dialog.cmdOK->isEnabled(); }));
      opened = dialog.isVisible();
      if (opened) act(dialog);
      dialog.CloseBox();
    });
    StartAddPicture();
    QCoreApplication::processEvents();
    return opened;
  }
  bool Insert(const std::string& path) {
    return Add(path, [](frmAddPicture& dialog) {
      Click(dialog.cmdOK);
      EXPECT_FALSE(dialog.isVisible());
    });
  }
  static QColor At(const frmAddPicture& dialog, int x, int y) {
    return dialog.picResize2->grab().toImage().pixelColor(x, y);
  }
};

TEST_F(AddPicture, MeasuresTwiceRoundedAndShowsThePreviewOnThePapersColour) {
  std::ostringstream seen;
  Add(photo, [&](frmAddPicture& d) {
    for (auto* button : {d.cmdResizeFactor25, d.cmdResizeFactor10, d.cmdResizeFactor50, d.cmdResizeFactor75,
                         d.cmdResizeFactor100, d.cmdResizeFactor200, d.cmdResizeFactorUP}) {
      Click(button);
      seen << d.lblScale->text().toStdString() << '=' << AddWidth << 'x' << AddHeight << ' ';
      EXPECT_EQ(d.picResize2->size(), QSize(AddWidth, AddHeight));
    }
    // One pixel of paper beside the picture, and nothing but paper beyond the surface's edge.
    const QColor paper(0xFF, 0xFF, 0x80);
    for (const auto& [x, color] : {std::pair{0, paper}, {1, QColor(Qt::blue)}, {1001, paper}})
      EXPECT_EQ(At(d, x, 500), color) << x;
    Click(d.cmdResizeFactor25);
    for (int press = 1; press <= 26; ++press) {
      const double scale = AddScale;
      Click(d.cmdResizeFactorDN);
      EXPECT_EQ(AddScale < scale, press <= 24) << press;
    }
    EXPECT_EQ(d.lblScale->text(), u"Scale: 1%");
  });
  EXPECT_EQ(seen.str(),
            "Scale: 25%=282x212 Scale: 10%=113x85 Scale: 50%=564x424 Scale: 75%=847x635 "
            "Scale: 100%=1129x847 Scale: 200%=2258x1694 Scale: 201%=2269x1702 ");
  EXPECT_EQ(chooser.asked.at(0).filters.at(0).patterns, "*.GIF;*.JPG;*.BMP");
}

TEST_F(AddPicture, ListsTheFramesAfreshAtEachOpening) {
  Image("frames/my.wood.GIF", Qt::red, Qt::red);
  folder.Write("frames/Lace.svg", "");
  Add(photo, [](frmAddPicture& dialog) {
    EXPECT_EQ(dialog.List1->count(), 2);
    dialog.List1->setCurrentRow(1);
    EXPECT_EQ(dialog.List1->currentItem()->text(), u"my.wood");
    EXPECT_EQ(At(dialog, 9, 9), QColor(Qt::red));
    for (const auto& [frame, color] : {std::pair{0, Qt::blue}, {1, Qt::red}}) {
      dialog.SetFrame(static_cast<std::int16_t>(frame));
      EXPECT_EQ(At(dialog, 9, 9), QColor(color)) << frame;
    }
  });
  folder.Write("frames/Note.gif", "no picture");
  Add(photo, [this](frmAddPicture& dialog) {
    dialog.List1->setCurrentRow(1);
    EXPECT_NE(answers.last().find("frames/Note.gif"), std::string::npos);
    EXPECT_EQ(dialog.List1->currentItem()->text(), u"No Frame");
  });
  folder.Unblock("frames");
  EXPECT_TRUE(Add(photo, [](frmAddPicture& dialog) { EXPECT_EQ(dialog.List1->count(), 1); }));
  EXPECT_EQ(answers.last().find("Path not found: " + folder.PathOf("frames")), 0U);
}

TEST_F(AddPicture, LaysPicturesInAColumnUntilThePageIsFull) {
  const std::string lace = Image("frames/Lace.gif", Qt::red, Qt::red);
  Add(photo, [](frmAddPicture& dialog) {
    dialog.List1->setCurrentRow(1);
    Click(dialog.cmdOK);
  });
  const PagePicture first{photo, 282, 212, 0, {}, 1, lace, 2, "Summer", "j1", 42, 400, False};
  ASSERT_EQ(Pictures, (std::vector<PagePicture>{{}, first}));
  EXPECT_FALSE(pictures->picDisplayPics[0]->isHidden());
  EXPECT_TRUE(folder.Exists("tqpics.bin"));
  Pictures[1].Top = 5000;  // dragged: only the heights are looked at
  for (const int top : {228, 456, 40, 268, 496, 40}) {
    EXPECT_TRUE(Insert(photo));
    EXPECT_EQ(Pictures.back().Top, top);
  }
  Pictures[3].PictureFile = "/gone.jpg";  // counts all the same
  EXPECT_FALSE(Insert(photo));
  EXPECT_EQ(answers.texts(), fixture::Texts{"Maximum pictures for this page."});
  EXPECT_EQ(chooser.asked.size(), 7U);
  Pictures[3].Deleted = True;
  EXPECT_TRUE(Insert(photo));
}

// A camera's small copy within the file has an end of its own.
TEST_F(AddPicture, TellsOfAPhotographThatEndsTooSoon) {
  std::string jpeg = platform::ReadFile(fixture::PathOfSample("photographs/phone.jpg"));
  jpeg.insert(2, std::string("\xFF\xE2\x00\x06\xFF\xD8\xFF\xD9", 8));
  for (const auto& [bytes, isWhole] :
       {std::pair{jpeg, true},
        {jpeg + "trailer", true},
        {jpeg.substr(0, 3000), false},
        {jpeg.substr(0, jpeg.size() - 2) + std::string("\xFF\xFE\x00\x04\xFF\xD9", 6), false}}) {
    folder.Write("photo.jpg", bytes);
    EXPECT_TRUE(Add(folder.PathOf("photo.jpg"), [](frmAddPicture&) {}));
    EXPECT_EQ(answers.texts().empty(), isWhole) << bytes.size();
  }
  EXPECT_NE(answers.last().find("not whole"), std::string::npos);
}

// 48 megapixels: the window is there before they are, takes the scale meanwhile, and can be left.
TEST_F(AddPicture, OpensBeforeALargePictureIsDecoded) {
  QImage large(8000, 6000, QImage::Format_Grayscale8);
  large.fill(Qt::red);
  const std::string path = folder.PathOf("large.png");
  ASSERT_TRUE(large.save(QString::fromStdString(path), "PNG"));
  chooser.file = path;
  for (const bool waits : {true, false}) {
    QTimer::singleShot(0, &page, [waits] {
      auto& dialog = look::The<frmAddPicture>();
      EXPECT_TRUE(dialog.isVisible() && !dialog.cmdOK->isEnabled());
      Click(dialog.cmdResizeFactor50);
      EXPECT_EQ(dialog.lblScale->text(), u"Scale: 50%");
      EXPECT_TRUE(!waits || QTest::qWaitFor([&] { return dialog.cmdOK->isEnabled(); }, 60000));
      EXPECT_EQ(AddWidth == 7056, waits) << AddWidth;
      dialog.CloseBox();
    });
    AddWidth = 0;
    StartAddPicture();
  }
}

// A camera's small copy stands in for the picture while that is decoded, and only then.
TEST_F(AddPicture, TheSmallCopyComesBeforeThePicture) {
  const std::string jpeg = platform::ReadFile(fixture::PathOfSample("photographs/phone.jpg"));
  int told = 0;
  pictures::PreviewDecoder decoder([&] { ++told; });
  for (const bool hasOne : {true, false}) {
    folder.Write("photo.jpg", hasOne ? fixture::WithSmallCopy(jpeg, jpeg) : jpeg);
    decoder.Decode(folder.PathOf("photo.jpg"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return decoder.IsReadyWithin({}) && told > 1; }, 60000));
    EXPECT_EQ(decoder.TakeSmallCopy().has_value(), hasOne);
    EXPECT_FALSE(decoder.TakeSmallCopy());
    EXPECT_EQ(decoder.Take().natural, pictures::UprightSize(folder.PathOf("photo.jpg")));
    told = 0;
  }
}

TEST_F(AddPicture, StoresNothingThatCannotBeShown) {
  folder.Write("letter.jpg", "Dear diary");
  EXPECT_FALSE(Insert(folder.PathOf("letter.jpg")));
  EXPECT_NE(answers.last().find("letter.jpg"), std::string::npos);
  Add(photo, [this](frmAddPicture& dialog) {
    folder.Write("photo.png", folder.Read("photo.png").substr(0, 60));
    Click(dialog.cmdOK);
  });
  EXPECT_NE(answers.last().find(photo + "\n\nIt is damaged"), std::string::npos);
  EXPECT_EQ(PictureCount, 0);
  EXPECT_FALSE(folder.Exists("tqpics.bin"));
}

}  // namespace
