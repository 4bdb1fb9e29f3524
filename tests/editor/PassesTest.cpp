// What is stored, when, and what a person sees of it.
#include "look/frmWait.h"
#include "tests/editor/OpenBook.h"

namespace {

using fixture::Texts;

class Passes : public fixture::OpenBook {
 protected:
  look::frmWait& wait() { return look::The<look::frmWait>(); }
};

TEST_F(Passes, APageThatWasNotChangedIsNeverStored) {
  const auto row = AddJournal({"cover", "plain \\b bold\\b0\\par \\i\\fs20 more", "\\u1046? two"});
  const std::string before = BytesOf(row);
  const fixture::Dismissal dismissal;
  Open(row);
  for (const char* key : {"btnNext", "btnNext", "btnBack", "btnBack", "btnLastPage", "btnFirstPage",
                          "btnIndex", "btnCal", "btnNext", "btnNewPage"}) {
    Press(key);
    ASSERT_EQ(BytesOf(row), before) << key;
  }
  QTest::mouseClick(text().viewport(), Qt::LeftButton);
  QTest::keyClick(&text(), Qt::Key_End);
  window().CloseBox();
  EXPECT_EQ(BytesOf(row).substr(539), before.substr(539)) << "only the password block is made anew";
}

TEST_F(Passes, AnEmptyPageIsStoredAsTheEmptyDocument) {
  const auto row = AddJournal({"cover", "", "two"});
  Open(row);
  Press("btnNext");
  EXPECT_EQ(PageDirty, True) << "showing it counts as a change";
  Press("btnNext");
  EXPECT_EQ(GetPlainPage(1).substr(0, 5), "{\\rtf");
  QTest::keyClick(&text(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&text(), Qt::Key_Delete);
  Press("btnFirstPage");
  EXPECT_EQ(TextsIn(row), (Texts{"cover", "", ""}));
  QTest::keyClick(&text(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Text(), "cover") << "undo brings back no other page's text";
}

TEST_F(Passes, OnlyTheCommandsThatLeaveOrLookUpAPageStoreIt) {
  const fixture::Dismissal dismissal;
  Open(AddJournal({"cover", "one"}));
  for (const char* key : {"btnPrint", "btnInsertEmoticon", "btnInsertPicture", "btnFont", "btnOptions",
                          "btnJournalProperties", "btnHelp", "btnIndex", "btnCal"}) {
    PageDirty = True;
    Press(key);
    EXPECT_EQ(PageDirty, key == std::string("btnIndex") || key == std::string("btnCal") ? False : True)
        << key;
  }
}

TEST_F(Passes, NothingIsLostWhenTheFileCannotBeWritten) {
  const auto row = AddJournal({"cover", "one"});
  Open(row);
  platform::SetProgramFolder(folder.PathOf("gone"));  // each refused write tells of itself, and so is counted
  window().CloseBox();
  EXPECT_EQ(answers.messages.size(), 1u) << "an unchanged page is written once at the closing";
  Type("My ");
  window().CloseBox();
  ASSERT_EQ(answers.messages.size(), 3u) << "a changed one twice";
  EXPECT_EQ(answers.messages[1].text.find("Page Encryption Error:"), 0u);
  EXPECT_NE(answers.last().find("j1.tqf"), std::string::npos);
  Press("btnNext");
  Press("btnBack");
  EXPECT_TRUE(window().isVisible());
  window().hide();
  window().CloseBox();
  EXPECT_EQ(Text(), "My cover") << "an invisible journal stays open too";
  platform::SetProgramFolder(folder.path());
  window().CloseBox();
  EXPECT_EQ(PagesJournal, 0);
  EXPECT_EQ(TextsIn(row), (Texts{"My cover", "one"}));
}

TEST_F(Passes, TextGoesBackOnlyToTheRowItCameFrom) {
  const auto row = AddJournal({"cover", "one"}), other = AddJournal({"other cover", "other one"});
  Open(row);
  const std::string before = BytesOf(row) + BytesOf(other);
  Type("My ");
  for (const auto& [journal, page] : {std::pair{row, 1}, {row, 77}, {other, 0}}) {
    CurrentJournal = journal;
    CurrentPage = page;
    StoreCurrentPage();
  }
  StoreOpenPage();  // the other journal is the current one
  CurrentJournal = row;
  window().hide();
  StoreOpenPage();
  EXPECT_EQ(BytesOf(row) + BytesOf(other), before);
  window().show();
  CurrentPage = 77;  // wherever a failure has left it
  StoreOpenPage();
  EXPECT_EQ(CurrentPage, 77);
  EXPECT_EQ(TextsIn(row), (Texts{"My cover", "one"}));
  ShowCurrentPage();
  EXPECT_EQ(GetPlainPage(2), "");
  EXPECT_EQ(answers.texts(), Texts(2, "Page Decryption Error:Subscript out of range"));
  Type("x");
  StoreCurrentPage();
  EXPECT_EQ(TextsIn(row), (Texts{"My cover", "one"}));
}

TEST_F(Passes, TheProgressWindowComesAboveTenThousand) {
  Open(AddJournal({"cover", "one"}));
  bool shown = false, held = false;
  QObject::connect(&text(), &richtext::RichTextBox::Change, &text(), [&] {
    shown = wait().CountsAsShown();
    held = !text().updatesEnabled();
  });
  const auto show = [&](std::size_t length) {
    Pages[1].Body.assign(length, static_cast<char>('a' + PageShift));
    GoLastPage();
    EXPECT_FALSE(wait().CountsAsShown());
    EXPECT_TRUE(held && text().updatesEnabled()) << "the screen waits for the whole page, and no longer";
    return shown;
  };
  EXPECT_FALSE(show(10'000));
  EXPECT_EQ(wait().ProgressBar1->maximum(), 10'000);
  EXPECT_EQ(wait().lblInfo->text(), u"Decrypting page: 9 kb");
  EXPECT_TRUE(show(10'001));
  EXPECT_EQ(Text().size(), 5001u) << "an odd body lacks only its last filler";
  Type("x");
  EXPECT_EQ(GetPlainPage(0), fixture::Rtf("cover"));
  EXPECT_EQ(wait().ProgressBar1->maximum(), 10'001) << "a short page is read without a sign";
  EXPECT_EQ(GetPlainPage(1), std::string(5001, 'a'));
  EXPECT_EQ(PageDirty, True);
  StoreCurrentPage();
  EXPECT_EQ(wait().lblInfo->text(),
            QStringLiteral("Encrypting page: %1 kb").arg(Pages[1].Body.size() / 2048));
}

}  // namespace
