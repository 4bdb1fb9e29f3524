#include "bookcase/JournalIcons.h"
#include "bookcase/frmBookcase.h"
#include "bookcase/frmJournalProp.h"
#include "editor/PageFace.h"
#include "editor/Toolbar.h"
#include "editor/frmJournal.h"
#include "look/PictureBox.h"
#include "pictures/PictureSlots.h"
#include "platform/dialogs/ColorDialog.h"
#include "platform/dialogs/FontDialog.h"
#include "richtext/box/RichTextBox.h"
#include "store/NewJournals.h"
#include "store/Scrambler.h"
#include "tests/support/Windows.h"

namespace {

class JournalPropTest : public fixture::Windows {
 protected:
  JournalPropTest() {
    MasterPassword = ScrambleText("Rosebud7");
    PageShift = '7';
    MakeJournal("one");
    Row().FontName = "Gone Sans";
    Row().FontSize = 16;
    Row().PaperColor = 0x99CCFF;
    Row().FontColor = 0x0000AA;
    Row().Icon = 62;
    before = Row();
    Window().ShowModeless();
  }
  ~JournalPropTest() override {
    platform::SetColorChooser({});
    platform::SetFontChooser({});
  }
  static JournalEntry& Row() { return Journals[1]; }
  static frmBookcase& Window() { return look::The<frmBookcase>(); }
  static frmJournal& Book() { return look::The<frmJournal>(); }
  static void In(const std::function<void(frmJournalProp&)>& act) {
    QTimer::singleShot(0, [act] { act(look::The<frmJournalProp>()); });
    if (Book().isVisible())
      Click(Book().Toolbar1->Button(u"btnJournalProperties"_qs));
    else
      Click(Window().cmdProp);
    EXPECT_FALSE(look::IsLoaded<frmJournalProp>());
  }

  JournalEntry before;
};

TEST_F(JournalPropTest, TheIconsEndHardAndCancelKeepsTheRow) {
  for (const auto& [size, text] :
       {std::pair{0, u"File Size: 0 kb"}, {1023, u"File Size: 0 kb"}, {5000, u"File Size: 4 kb"}}) {
    if (size > 0) folder.Write("j00000.tqf", std::string(static_cast<std::size_t>(size), 'x'));
    In([text = text](frmJournalProp& dialog) {
      EXPECT_EQ(dialog.lblJFsize->text(), text);
      for (int i = 0; i < 3; ++i) Click(dialog.cmdIconNext);
      EXPECT_EQ(dialog.Image1->accessibleName(), JournalIconName(63));
      for (int i = 0; i < 64; ++i) Click(dialog.cmdIconBack);
      EXPECT_EQ(dialog.Image1->accessibleName(), JournalIconName(1));
      QTest::keyClicks(dialog.txtJournalName, u"changed"_qs);
      QTest::keyClick(&dialog, Qt::Key_Escape);
    });
  }
  EXPECT_EQ(Row(), before);
  EXPECT_EQ(GetFileLength(folder.path()), 0) << "a folder is no file";
}

TEST_F(JournalPropTest, OkAloneBringsRowWindowAndListUpToDate) {
  Click(Window().cmdOpen);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Book()));
  platform::SetColorChooser([](const platform::ColorQuestion& question) {
    EXPECT_EQ(question.start, 0x99CCFFu);
    return platform::DialogResult<std::uint32_t>{{}, 0x123456};
  });
  platform::SetFontChooser([](const platform::FontQuestion& question) {
    EXPECT_EQ(question.start,
              (platform::FontValues{u"Gone Sans"_qs, 16, false, false, false, false, 0x0000AA}));
    return platform::DialogResult<platform::FontValues>{{}, {{}, 12.5, true, true, true, true, 0x00FF00}};
  });
  In([](frmJournalProp& dialog) {
    Click(dialog.cmdPaperColor);
    Click(dialog.cmdDefaultFont);
    EXPECT_EQ(Book().face->txtM->BackColor(), 0x99CCFFu) << "the page waits for Ok";
    dialog.txtJournalName->clear();
    Click(dialog.cmdIconNext);
    QTest::keyClick(dialog.txtJournalName, Qt::Key_Return);
  });
  JournalEntry expected = before;
  expected.Name = "";
  expected.Icon = before.Icon + 1;
  expected.PaperColor = 0x123456;
  expected.FontSize = 12;  // half a point goes to the even neighbour
  expected.FontColor = 0x00FF00;
  expected.FontBold = expected.FontItalic = expected.FontUnderline = expected.FontStrikethru = True;
  expected.PageCount = Row().PageCount;
  EXPECT_EQ(Row(), expected) << "an empty name of a font leaves the one there was";
  const PageFace& face = *Book().face;
  EXPECT_EQ(face.txtM->BackColor(), 0x123456u);
  EXPECT_EQ(face.pictures->picDisplayPics[6]->BackColor(), 0x123456u) << "behind what is transparent";
  EXPECT_EQ(face.txtM->SelFontName(), u"Gone Sans");
  EXPECT_EQ(face.txtM->SelFontSize(), 12);
  EXPECT_EQ(Book().windowHandle()->title(), u"Thornquill []");
  EXPECT_EQ(Window().ListView1->item(0)->text(), QString());
  EXPECT_EQ(PageDirty, False);
}

TEST_F(JournalPropTest, AFailedDialogIsToldAndChangesNothing) {
  using platform::DialogEnd;
  for (const DialogEnd& how : {DialogEnd{7, "Out of memory"}, DialogEnd{DialogEnd::Cancelled, {}}}) {
    platform::SetColorChooser([how](const auto&) { return platform::DialogResult<std::uint32_t>{how, 1}; });
    platform::SetFontChooser([how](const auto&) {
      return platform::DialogResult<platform::FontValues>{how, {u"Other"_qs, 99}};
    });
    In([](frmJournalProp& dialog) {
      Click(dialog.cmdPaperColor);
      Click(dialog.cmdDefaultFont);
      Click(dialog.cmdOK);
    });
  }
  EXPECT_EQ(answers.texts(), (fixture::Texts{"Error 7 selecting color.\r\nOut of memory",
                                             "Error 7 selecting font.\r\nOut of memory"}));
  EXPECT_EQ(Row(), before);
}

}  // namespace
