// What is stored, when, and what a person sees of it.
#include "look/frmWait.h"
#include "tests/editor/OpenBook.h"

namespace {

using fixture::Texts;
using Passes = fixture::OpenBook;

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
  window().CloseBox();
  EXPECT_EQ(BytesOf(row).substr(539), before.substr(539)) << "only the password block is made anew";
}

TEST_F(Passes, AClosingWritesTheFileOnceAndAgainOverAnothersAlone) {
  const auto row = AddJournal({"cover", "one"});
  int writes = 0;
  std::function<void()> meanwhile;
  FileWillBeWritten = [&](DataFile) { ++writes; };
  SomethingWasStored = [&] {
    if (meanwhile) std::exchange(meanwhile, nullptr)();
  };
  const auto writesOf = [&](const std::string& typed) {
    Open(row);
    Type(typed);
    window().CloseBox();
    return std::exchange(writes, 0);
  };
  EXPECT_EQ(writesOf("x"), 1);
  EXPECT_EQ(writesOf(""), 1);
  meanwhile = [&] { folder.Write(FileOf(row), "ZANDOLK JOURNAL FILE V00001, another's"); };
  EXPECT_EQ(writesOf("y"), 2);
  EXPECT_EQ(folder.Names(), (Texts{FileOf(row), FileOf(row) + ".1.other"}));
  EXPECT_EQ(TextsIn(row), (Texts{"yxcover", "one"}));
}

TEST_F(Passes, AnEmptyPageIsStoredAsTheEmptyDocument) {
  const auto row = Begin({"cover", "", "two"});
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

TEST_F(Passes, TextGoesBackOnlyToTheRowItCameFrom) {
  const auto row = AddJournal({"cover", "one"}), other = AddJournal({"other cover", "other one"});
  Open(row);
  const std::string before = BytesOf(row) + BytesOf(other);
  Type("My ");
  for (const auto& [journal, page] : {std::pair{row, 1}, {row, 77}, {other, 0}}) {
    Staged().CurrentJournal = journal;
    Staged().CurrentPage = page;
    StoreCurrentPage();
  }
  Staged().CurrentJournal = row;
  window().hide();
  StoreOpenPage();
  EXPECT_EQ(BytesOf(row) + BytesOf(other), before);
  window().show();
  Staged().CurrentPage = 77;  // wherever a failure has left it
  StoreOpenPage();
  EXPECT_EQ(TextsIn(row), (Texts{"My cover", "one"}));
  ShowCurrentPage();
  EXPECT_EQ(answers.texts(), Texts{"Page Decryption Error:Subscript out of range"});
  Type("x");
  StoreCurrentPage();
  EXPECT_EQ(TextsIn(row), (Texts{"My cover", "one"}));
}

TEST_F(Passes, TheProgressWindowComesAboveTenThousand) {
  const auto& wait = look::The<look::frmWait>();
  Begin({"cover", "one"});
  for (const std::size_t length : {10'000U, 10'001U}) {
    bool shown = false, held = false;
    QObject::connect(&text(), &richtext::RichTextBox::Change, &wait, [&] {
      shown = wait.CountsAsShown();
      held = !text().updatesEnabled();
    });
    Pages[1].Body = std::string(length, static_cast<char>('a' + PageShift));
    GoLastPage();
    text().disconnect(&wait);
    EXPECT_EQ(shown, length > 10'000) << length;
    EXPECT_FALSE(wait.CountsAsShown());
    EXPECT_TRUE(held && text().updatesEnabled()) << "the screen waits for the whole page, and no longer";
    EXPECT_EQ(wait.ProgressBar1->maximum(), length);
    EXPECT_EQ(wait.lblInfo->text(), u"Decrypting page: 9 kb");
  }
  EXPECT_EQ(GetPlainPage(1), std::string(5001, 'a')) << "an odd body lacks only its last filler";
}

}  // namespace
