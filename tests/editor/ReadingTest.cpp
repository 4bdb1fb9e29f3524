// Opening journals, sound and bad ones, turning their pages, and whose pages are whose.
#include <algorithm>

#include <QtNetwork/QLocalServer>

#include "tests/editor/OpenBook.h"

namespace {

using fixture::Texts;
using Reading = fixture::OpenBook;

TEST_F(Reading, AnAlienOrUnreadableFileIsToldAndNeverWritten) {
  const auto sound = AddJournal({"cover", "one"}), alien = AddJournal(), unreadable = AddJournal();
  folder.Write(FileOf(alien), "ZANDOLK JOURNAL FILE V00002 and something else");
  QLocalServer server;  // its socket is an entry that cannot be opened as a file, not even by root
  ASSERT_TRUE(server.listen(QString::fromStdString(folder.PathOf(FileOf(unreadable)))));
  for (const std::int32_t row : {alien, unreadable}) {
    Load(sound);
    Type("typed into the sound one");
    Load(row);
    EXPECT_EQ(PagesJournal, 0);
    EXPECT_EQ(Text(), "");
    Type("x");
    StoreCurrentPage();
    window().CloseBox();
  }
  EXPECT_EQ(BytesOf(alien), "ZANDOLK JOURNAL FILE V00002 and something else");
  ASSERT_EQ(answers.messages.size(), 2u);
  EXPECT_EQ(answers.messages[0].text, "Journal load -- file unknown or corrupt!");
  EXPECT_EQ(answers.messages[0].icon, platform::BoxIcon::None);
  EXPECT_NE(answers.last().find("j3.tqf"), std::string::npos);
}

TEST_F(Reading, ADamagedFileOpensWithItsWholePagesAndIsKept) {
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
  EXPECT_EQ(TextsIn(row), (Texts{"cover", "one", "never stored"}));
}

TEST_F(Reading, ANewJournalStartsOnItsTitlePageOrOnPageOne) {
  const auto row = AddJournal();
  Open(row);
  EXPECT_EQ(Shown(), "Title Page: ");
  EXPECT_EQ(PageCount, 1);
  EXPECT_EQ(Pages[0].PageDate, 45000.5);
  EXPECT_EQ(PageDirty, False);
  chkGotoLastPage = 1;
  Open(row);
  EXPECT_EQ(Shown(), "day 45000Page 1: ");
  EXPECT_FALSE(folder.Exists(FileOf(row)));
  Type("first words");
  Press("btnBack");
  EXPECT_EQ(TextsIn(row), (Texts{"never stored", "first words"}));
  Journals[1].FileName.clear();
  Open(row);
  EXPECT_EQ(answers.texts(), Texts{"error: filename blank?"});
  window().CloseBox();
  EXPECT_EQ(folder.Names(), (Texts{"j1.tqf", "journal.journalfile"}));
}

TEST_F(Reading, ShowsEachPageWithItsDateAndNumber) {
  const auto row = AddJournal({"cover", "one", "two"});
  Open(row);
  EXPECT_EQ(Shown(), "Title Page: cover") << "it has a date and shows none";
  EXPECT_EQ(text().SelStart(), 0) << "the text comes after the caret was set";
  EXPECT_EQ(Journals[1].PageCount, 2);
  for (const auto& [key, shown] : {std::pair{"btnNext", "day 40001Page 1: one"},
                                   {"btnLastPage", "day 40002Page 2: two"},
                                   {"btnBack", "day 40001Page 1: one"},
                                   {"btnFirstPage", "Title Page: cover"}}) {
    Press(key);
    EXPECT_EQ(Shown(), shown);
  }
  text().SetSelStart(2);
  Press("btnBack");
  EXPECT_EQ(CurrentPage, 0);
  EXPECT_EQ(text().SelStart(), 2) << "back on the title page does nothing at all";
  chkGotoLastPage = 1;
  Open(row);
  EXPECT_EQ(Shown(), "day 40002Page 2: two");
}

TEST_F(Reading, ANewPageIsAskedForAndComesAtTheEndOfTheBook) {
  const auto row = AddJournal({"cover", "one", "two"});
  Open(row);
  Press("btnNext");
  Type("My ");
  Press("btnNewPage");
  EXPECT_EQ(CurrentPage, 1);
  EXPECT_EQ(TextsIn(row)[1], "oneMy ") << "the declined question does not undo the store";
  Press("btnLastPage");
  answers.yes = 1;
  Press("btnNext");
  EXPECT_EQ(answers.texts(), Texts(2, "Add (new) page 3?"));
  EXPECT_EQ(answers.messages[0].buttons, platform::Buttons::YesNo);
  EXPECT_EQ(answers.messages[0].icon, platform::BoxIcon::Question);
  EXPECT_EQ(Shown(), "day 45000Page 3: ");
  EXPECT_TRUE(text().hasFocus());
  EXPECT_EQ(Pages.at(3).Body, "") << "stored at its leaving and not before";
  const auto box =
      platform::SetMessageAnswerer([](const platform::Message&) { return platform::Answer::Ok; });
  window().PageNew();
  platform::SetMessageAnswerer(box);
  EXPECT_EQ(CurrentPage, 4) << "anything but No adds the page";
  EXPECT_EQ(PageCount, 4);
}

TEST_F(Reading, WhatIsTypedNextHasTheJournalsFont) {
  const auto row = AddJournal({"cover", "plain \\b bold\\b0"});
  JournalEntry& entry = Journals[1];
  entry.FontName = "DejaVu Sans Mono";
  entry.FontSize = 20;
  entry.FontItalic = entry.FontStrikethru = entry.FontUnderline = True;
  entry.FontColor = 0x0000FF;
  Open(row);
  Press("btnNext");
  EXPECT_EQ(PageDirty, False) << "a caret's font is no change";
  Type("x");
  EXPECT_EQ(FontAt(10),
            (platform::FontValues{u"DejaVu Sans Mono"_qs, 20, false, true, true, true, 0x0000FF}));
  EXPECT_TRUE(FontAt(9).bold) << "earlier text keeps its own";
}

TEST_F(Reading, TheWindowComesUpAgainWithoutTheFormerText) {
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

// At the first run the pages are made before any journal is chosen.
TEST_F(Reading, PagesOfNoJournalAreNeverSaved) {
  window();
  NewJournalPages();
  Type("words for nobody");
  StoreCurrentPage();
  StoreOpenPage();
  window().CloseBox();
  EXPECT_TRUE(folder.Names().empty());
  EXPECT_TRUE(answers.messages.empty());
  EXPECT_TRUE(Pages.empty());
}

// Two journals with files and one without are used in every order, each one in each of four ways. Whatever
// was typed where, no file ever holds a word of another journal, and none that was left open is written.
class EveryOrder : public fixture::OpenBook, public testing::WithParamInterface<int> {
 protected:
  enum Way { Closed, Turned, LeftTyped, LeftUntouched };  // the last two stay open, invisibly
  void Use(std::int32_t row, Way way) {
    const std::string word = "word" + std::to_string(row), before = BytesOf(row);
    way < LeftTyped ? Open(row) : Load(row);
    if (way != LeftUntouched) Type(word);
    if (way == Turned) Press("btnNext"), Type(word);
    if (way < LeftTyped)
      window().CloseBox();
    else
      EXPECT_EQ(BytesOf(row), before);
    for (std::int32_t file = 1; file <= 3; ++file) ASSERT_NO_FATAL_FAILURE(ExpectOnlyItsOwn(file));
  }
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
