// What is stored, when, and what a person sees of it.
#include "look/frmWait.h"
#include "tests/editor/OpenBook.h"

namespace {

class Passes : public fixture::OpenBook {
 protected:
  look::frmWait& wait() { return look::The<look::frmWait>(); }
};

TEST_F(Passes, APageThatWasNotChangedIsNeverStored) {
  const auto row = AddJournal({"cover", "plain \\b bold\\b0\\par \\i\\fs20 more", "\\u1046? two"});
  const std::string before = BytesOf(row);
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
  EXPECT_EQ(TextsIn(row), (std::vector<std::string>{"cover", "", ""}));
  QTest::keyClick(&text(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Text(), "cover") << "undo brings back no other page's text";
}

TEST_F(Passes, OnlyTheCommandsThatLeaveOrLookUpAPageStoreIt) {
  Open(AddJournal({"cover", "one"}));
  Type("x");
  for (const char* key : {"btnPrint", "btnInsertEmoticon", "btnInsertPicture", "btnFont", "btnOptions",
                          "btnJournalProperties", "btnHelp"}) {
    Press(key);
    EXPECT_EQ(PageDirty, True) << key;
  }
  for (const char* key : {"btnIndex", "btnCal"}) {
    PageDirty = True;
    Press(key);
    EXPECT_EQ(PageDirty, False) << key;
  }
}

TEST_F(Passes, NothingIsLostWhenTheFileCannotBeWritten) {
  const auto row = AddJournal({"cover", "one"});
  Open(row);
  Type("My ");
  platform::SetProgramFolder(folder.PathOf("gone"));
  Press("btnNext");
  ASSERT_EQ(answers.messages.size(), 1u);
  EXPECT_EQ(answers.last().find("Page Encryption Error:"), 0u);
  Press("btnBack");
  EXPECT_EQ(Text(), "My cover");
  window().CloseBox();
  EXPECT_NE(answers.last().find("j1.tqf"), std::string::npos);
  EXPECT_TRUE(window().isVisible());
  window().hide();
  window().CloseBox();
  EXPECT_EQ(Text(), "My cover") << "an invisible journal stays open too";
  platform::SetProgramFolder(folder.path());
  window().CloseBox();
  EXPECT_EQ(PagesJournal, 0);
  EXPECT_EQ(TextsIn(row), (std::vector<std::string>{"My cover", "one"}));
}

TEST_F(Passes, TextGoesBackOnlyToTheRowItCameFrom) {
  const auto row = AddJournal({"cover", "one"});
  const auto other = AddJournal({"other cover", "other one"});
  Open(row);
  const std::string before = BytesOf(row), otherBefore = BytesOf(other);
  Type("My ");
  CurrentPage = 1;
  StoreCurrentPage();
  CurrentPage = 0;
  CurrentJournal = other;
  StoreCurrentPage();
  StoreOpenPage();
  CurrentJournal = row;
  window().hide();
  StoreOpenPage();
  EXPECT_EQ(BytesOf(row), before);
  EXPECT_EQ(BytesOf(other), otherBefore);

  window().show();
  CurrentPage = 77;  // wherever a failure has left it
  StoreOpenPage();
  EXPECT_EQ(CurrentPage, 77);
  EXPECT_EQ(TextsIn(row), (std::vector<std::string>{"My cover", "one"}));
}

TEST_F(Passes, TheProgressWindowComesAboveTenThousand) {
  Open(AddJournal({"cover", "one"}));
  bool shown = false;
  QObject::connect(&text(), &richtext::RichTextBox::Change, &text(), [&] { shown = wait().CountsAsShown(); });
  const auto show = [&](std::size_t length) {
    Pages[1].Body.assign(length, static_cast<char>('a' + PageShift));
    GoLastPage();
    EXPECT_FALSE(wait().CountsAsShown());
    return shown;
  };
  EXPECT_FALSE(show(10'000));
  EXPECT_EQ(wait().ProgressBar1->maximum(), 10'000);
  EXPECT_EQ(wait().lblInfo->text(), u"Decrypting page: 9 kb");
  EXPECT_TRUE(show(10'001));
  EXPECT_EQ(Text().size(), 5001u) << "an odd body lacks only its last filler";
  EXPECT_TRUE(show(20'000));
  EXPECT_EQ(wait().lblInfo->text(), u"Decrypting page: 19 kb");
  Type("x");
  StoreCurrentPage();
  EXPECT_EQ(wait().lblInfo->text(),
            QStringLiteral("Encrypting page: %1 kb").arg(Pages[1].Body.size() / 2048));
}

TEST_F(Passes, APlainPageIsReadWithoutTouchingAnything) {
  Open(AddJournal({"cover", "one", "", std::string(6000, 'x')}));
  Type("x");
  wait().lblInfo->setText(QStringLiteral("as before"));
  EXPECT_EQ(GetPlainPage(1), fixture::Rtf("one"));
  EXPECT_EQ(GetPlainPage(2), "");
  EXPECT_EQ(wait().lblInfo->text(), u"as before");
  EXPECT_EQ(GetPlainPage(3), fixture::Rtf(std::string(6000, 'x')));
  EXPECT_EQ(wait().lblInfo->text(), u"Decrypting page: 11 kb");
  EXPECT_EQ(PageDirty, True);
  EXPECT_EQ(Text(), "xcover");
}

TEST_F(Passes, ARowThatDoesNotExistIsToldAndNothingIsStoredFromIt) {
  const auto row = AddJournal({"cover", "one"});
  Open(row);
  const std::string before = BytesOf(row);
  EXPECT_EQ(GetPlainPage(2), "");
  CurrentPage = -1;
  ShowCurrentPage();
  EXPECT_EQ(answers.texts(), std::vector<std::string>(2, "Page Decryption Error:Subscript out of range"));
  Type("x");
  StoreCurrentPage();
  EXPECT_EQ(BytesOf(row), before);
}

}  // namespace
