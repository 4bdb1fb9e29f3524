// Opening journals, sound and bad ones, and whose pages are whose.
#include <algorithm>

#include <QtNetwork/QLocalServer>

#include "tests/editor/OpenBook.h"

namespace {

class Opening : public fixture::OpenBook {};

TEST_F(Opening, StartsOnTheTitlePageOrOnTheLast) {
  const auto row = AddJournal({"cover", "one", "two"});
  Open(row);
  EXPECT_EQ(Text(), "cover");
  EXPECT_EQ(text().SelStart(), 0) << "the text comes after the caret was set";
  EXPECT_EQ(Journals[1].PageCount, 2);
  chkGotoLastPage = 1;
  Open(row);
  EXPECT_EQ(Text(), "two");
}

TEST_F(Opening, AnEmptyNameIsReplacedInTheRow) {
  const auto row = AddJournal();
  Journals[1].FileName.clear();
  Open(row);
  EXPECT_EQ(answers.texts(), std::vector<std::string>{"error: filename blank?"});
  window().CloseBox();
  EXPECT_EQ(folder.Names(), std::vector<std::string>{"journal.journalfile"});
}

TEST_F(Opening, AnAlienFileIsToldAndNeverWritten) {
  const auto sound = AddJournal({"cover", "one"});
  const auto alien = AddJournal();
  folder.Write(FileOf(alien), "ZANDOLK JOURNAL FILE V00002 and something else");
  const std::string before = BytesOf(alien);
  Load(sound);
  Type("typed into the sound one");
  Load(alien);
  EXPECT_EQ(PagesJournal, 0);
  EXPECT_EQ(Text(), "");
  Type("x");
  StoreCurrentPage();
  window().CloseBox();
  EXPECT_EQ(BytesOf(alien), before);
  EXPECT_EQ(answers.texts(), std::vector<std::string>{"Journal load -- file unknown or corrupt!"});
  EXPECT_EQ(answers.messages[0].icon, platform::BoxIcon::None);
}

TEST_F(Opening, ADamagedFileOpensWithItsWholePagesAndIsKept) {
  const auto row = AddJournal({"cover", "one", "two"});
  const std::string cut = BytesOf(row).substr(0, BytesOf(row).size() - 9);
  folder.Write(FileOf(row), cut);
  Open(row);
  ASSERT_EQ(answers.messages.size(), 1u);
  EXPECT_NE(answers.last().find("j1.tqf"), std::string::npos);
  EXPECT_NE(answers.last().find("title page counted: 2."), std::string::npos) << answers.last();
  EXPECT_EQ(BytesOf(row), cut) << "opening writes nothing";
  window().CloseBox();
  EXPECT_EQ(folder.Read("j1.tqf.damaged"), cut);
  EXPECT_EQ(TextsIn(row), (std::vector<std::string>{"cover", "one", "never stored"}));
}

TEST_F(Opening, AFileThatCannotBeReadIsNamed) {
  const auto row = AddJournal();
  QLocalServer server;  // its socket is an entry that cannot be opened as a file, not even by root
  ASSERT_TRUE(server.listen(QString::fromStdString(folder.PathOf(FileOf(row)))));
  Load(row);
  ASSERT_EQ(answers.messages.size(), 1u);
  EXPECT_NE(answers.last().find("j1.tqf"), std::string::npos);
  EXPECT_EQ(PagesJournal, 0);
}

TEST_F(Opening, TheWindowComesUpAgainWithoutTheFormerText) {
  Open(AddJournal({"my secret", "one"}));
  Type("x");
  window().CloseBox();
  EXPECT_EQ(Text(), "");
  EXPECT_TRUE(Pages.empty());
  EXPECT_EQ(PageDirty, True) << "the emptied text box counts as changed until a page is shown";
  Open(AddJournal());
  QTest::keyClick(&text(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Text(), "");
  EXPECT_EQ(PageDirty, False);
}

// Two journals with files and one without are used in every order, each one in each of four ways. Whatever
// was typed where, no file ever holds a word of another journal, and none that was left open is written.
class EveryOrder : public fixture::OpenBook, public testing::WithParamInterface<int> {
 protected:
  enum Way { Closed, Turned, LeftTyped, LeftUntouched };  // the last two stay open, invisibly
  void Use(std::int32_t row, Way way) {
    const std::string word = "word" + std::to_string(row);
    const std::string before = Bytes(row);
    way < LeftTyped ? Open(row) : Load(row);
    if (way != LeftUntouched) Type(word.c_str());
    if (way == Turned) Press("btnNext"), Type(word.c_str());
    if (way < LeftTyped)
      window().CloseBox();
    else
      EXPECT_EQ(Bytes(row), before);
    for (std::int32_t file = 1; file <= 3; ++file) ASSERT_NO_FATAL_FAILURE(ExpectOnlyItsOwn(file));
  }
  std::string Bytes(std::int32_t row) { return folder.Exists(FileOf(row)) ? BytesOf(row) : ""; }
  void ExpectOnlyItsOwn(std::int32_t row) {
    if (!folder.Exists(FileOf(row))) return;
    const std::string own = "word" + std::to_string(row);
    for (const std::string& page : TextsIn(row))
      for (auto at = page.find("word"); at != std::string::npos; at = page.find("word", at + 1))
        ASSERT_EQ(page.substr(at, own.size()), own) << page;
  }
};

TEST_P(EveryOrder, NoPageReachesAnotherJournal) {
  AddJournal({"word1 cover", "word1 one"});
  AddJournal({"", "word2 one"});
  AddJournal();
  std::vector<std::int32_t> order{1, 2, 3};
  do {
    int ways = GetParam();
    for (const std::int32_t row : order) {
      ASSERT_NO_FATAL_FAILURE(Use(row, static_cast<Way>(ways % 4)));
      ways /= 4;
    }
  } while (std::next_permutation(order.begin(), order.end()));
  EXPECT_TRUE(answers.messages.empty()) << answers.last();
}

INSTANTIATE_TEST_SUITE_P(AllWays, EveryOrder, testing::Range(0, 64));

}  // namespace
