// Opening journals, sound and bad ones, turning their pages, and whose pages are whose.
#include <QtNetwork/QLocalServer>

#include "tests/editor/OpenBook.h"

namespace {

using fixture::Texts;
using Reading = fixture::OpenBook;

TEST_F(Reading, AnAlienOrUnreadableFileIsToldAndNeverWritten) {
  const auto sound = AddJournal({"cover", "one"}), alien = AddJournal(), unreadable = AddJournal();
  const std::string foreign = "ZANDOLK JOURNAL FILE V00002 and something else";
  folder.Write(FileOf(alien), foreign);
  QLocalServer server;  // its socket is an entry that cannot be opened as a file, not even by root
  ASSERT_TRUE(server.listen(QString::fromStdString(folder.PathOf(FileOf(unreadable)))));
  for (const std::int32_t row : {alien, unreadable}) {
    Load(sound);
    Load(row);
    EXPECT_EQ(PagesJournal, 0);
    EXPECT_EQ(Text(), "");
    Type("x");
    window().CloseBox();
  }
  EXPECT_EQ(BytesOf(alien), foreign);
  ASSERT_EQ(answers.messages.size(), 2u);
  EXPECT_EQ(answers.messages[0].text, "Journal load -- file unknown or corrupt!");
  EXPECT_NE(answers.last().find("j3.tqf"), std::string::npos);
}

TEST_F(Reading, ANewJournalStartsOnItsTitlePageOrOnPageOneInItsFont) {
  const auto row = AddJournal();
  Open(row);
  EXPECT_EQ(Shown(), "Title Page: ");
  EXPECT_EQ(Pages[0].PageDate, 45000.5);
  chkGotoLastPage = 1;
  JournalEntry& entry = Journals[1];
  entry.FontItalic = entry.FontStrikethru = entry.FontUnderline = True;
  entry.FontColor = 0x0000FF;
  Open(row);
  EXPECT_EQ(Shown(), "day 45000Page 1: ");
  EXPECT_EQ(PageDirty, False) << "a caret's font is no change";
  EXPECT_FALSE(folder.Exists(FileOf(row)));
  Type("first words");
  EXPECT_EQ(FontAt(10), (platform::FontValues{u"DejaVu Serif"_qs, 16, false, true, true, true, 0x0000FF}));
  Press("btnBack");
  EXPECT_EQ(TextsIn(row), (Texts{"never stored", "first words"}));
  entry.FileName.clear();
  Open(row);
  EXPECT_EQ(answers.texts(), Texts{"error: filename blank?"});
  window().CloseBox();
  EXPECT_EQ(folder.Names(), (Texts{"j1.tqf", "journal.journalfile"}));
}

TEST_F(Reading, WhatIsTypedFirstHasTheJournalsFontWhateverKeysComeBefore) {
  const auto row = AddJournal({"cover", ""});
  for (const int last : {0, 1}) {
    chkGotoLastPage = last;
    Open(row);
    EXPECT_EQ(text().SelStart(), 0);
    EXPECT_FALSE(text().document()->isUndoAvailable());
    EXPECT_EQ(PageDirty, last ? True : False) << "only a page never stored counts as changed";
    for (const Qt::Key key : {Qt::Key_End, Qt::Key_A})
      if (last) QTest::keyClick(&text(), key, Qt::ControlModifier);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Delete})
      if (last) QTest::keyClick(&text(), key);
    Type("x");
    EXPECT_EQ(FontAt(0), (platform::FontValues{u"DejaVu Serif"_qs, 16})) << last;
  }
}

TEST_F(Reading, ShowsEachPageWithItsDateAndNumber) {
  const auto row = Begin({"cover", "one", "two"});
  EXPECT_EQ(Shown(), "Title Page: cover") << "it has a date and shows none";
  EXPECT_EQ(text().SelStart(), 0) << "the text comes after the caret was set";
  EXPECT_EQ(Journals[1].PageCount, 2);
  chkGotoLastPage = 1;
  Open(row);
  EXPECT_EQ(Shown(), "day 40002Page 2: two");
  for (const char* shown : {"day 40001Page 1: one", "Title Page: cover", "Title Page: cover"}) {
    Press("btnBack");
    EXPECT_EQ(Shown(), shown);
  }
}

TEST_F(Reading, ANewPageIsAskedForAndComesAtTheEndOfTheBook) {
  const auto row = Begin({"cover", "one", "two"});
  Press("btnNext");
  Type("My ");
  Press("btnNewPage");
  EXPECT_EQ(CurrentPage, 1);
  EXPECT_EQ(TextsIn(row)[1], "oneMy ") << "the declined question does not undo the store";
  Press("btnLastPage");
  answers.yes = 1;
  Press("btnNext");
  EXPECT_EQ(answers.texts(), Texts(2, "Add (new) page 3?"));
  EXPECT_EQ(Shown(), "day 45000Page 3: ");
  EXPECT_TRUE(text().hasFocus());
  EXPECT_EQ(Pages.at(3).Body, "") << "stored at its leaving and not before";
  platform::SetMessageAnswerer([](const platform::Message&) { return platform::Answer::Ok; });
  window().PageNew();
  EXPECT_EQ(PageCount, 4) << "anything but No adds the page";
}

TEST_F(Reading, TheWindowComesUpAgainWithoutTheFormerText) {
  Begin({"my secret", "one"});
  Type("x");
  window().CloseBox();
  EXPECT_TRUE(Pages.empty() && Text().empty());
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
}

// Two journals with files and one without are used in every order, each one in each of four ways: closed,
// closed after a page was turned, and left open, invisibly, with or without something typed. No file ever
// holds a word of another journal, and none that was left open is written.
TEST_F(Reading, NoPageReachesAnotherJournal) {
  const auto word = [](std::int32_t row) { return "word" + std::to_string(row % 3); };
  for (int all = 0; all < 64; ++all) {
    const auto first = AddJournal({word(1) + " cover", word(1)}), second = AddJournal({"", word(2)});
    std::vector<std::int32_t> order{first, second, AddJournal()};
    do {
      int ways = all;
      for (const std::int32_t row : order) {
        const bool closes = ways % 4 < 2, turns = ways % 4 == 1, types = ways % 4 < 3;
        ways /= 4;
        const std::string before = BytesOf(row);
        closes ? Open(row) : Load(row);
        if (types) Type(word(row));
        if (turns) Press("btnNext"), Type(word(row));
        if (closes) window().CloseBox();
        ASSERT_TRUE(closes || BytesOf(row) == before) << all;
        for (const std::int32_t file : order)
          for (const std::string& page : folder.Exists(FileOf(file)) ? TextsIn(file) : Texts())
            ASSERT_FALSE(
                QString::fromStdString(page).remove(QString::fromStdString(word(file))).contains(u"word"))
                << page;
      }
    } while (std::next_permutation(order.begin(), order.end()));
  }
  EXPECT_TRUE(answers.messages.empty()) << answers.last();
}

}  // namespace
