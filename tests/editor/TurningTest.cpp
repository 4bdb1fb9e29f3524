// Moving among the pages, and what each page looks like when it comes up.
#include "tests/editor/OpenBook.h"

namespace {

class Turning : public fixture::OpenBook {};

TEST_F(Turning, ShowsEachPageWithItsDateAndNumber) {
  Open(AddJournal({"cover", "one", "two"}));
  EXPECT_EQ(Header(), u"Title Page") << "it has a date and shows none";
  Press("btnNext");
  EXPECT_EQ(Header(), u"day 40001Page 1");
  EXPECT_EQ(Text(), "one");
  Press("btnLastPage");
  EXPECT_EQ(Text(), "two");
  Press("btnBack");
  EXPECT_EQ(Text(), "one");
  Press("btnFirstPage");
  EXPECT_EQ(Text(), "cover");

  text().SetSelStart(2);
  Press("btnBack");
  EXPECT_EQ(CurrentPage, 0);
  EXPECT_EQ(text().SelStart(), 2) << "back on the title page does nothing at all";
}

TEST_F(Turning, NextOnTheLastPageAsks) {
  Open(AddJournal(std::vector<std::string>(6, "some text")));
  Press("btnLastPage");
  Press("btnNext");
  ASSERT_EQ(answers.texts(), std::vector<std::string>{"Add (new) page 6?"});
  EXPECT_EQ(answers.messages[0].buttons, platform::Buttons::YesNo);
  EXPECT_EQ(answers.messages[0].icon, platform::BoxIcon::Question);
  EXPECT_EQ(CurrentPage, 5);
  EXPECT_EQ(PageCount, 5);
  EXPECT_EQ(Text(), "some text");

  answers.Yes();
  Press("btnNext");
  EXPECT_EQ(CurrentPage, 6);
  EXPECT_EQ(Pages.size(), 7u);
  EXPECT_EQ(Text(), "");
  EXPECT_EQ(Header(), u"day 45000Page 6");
  EXPECT_TRUE(text().hasFocus());
  EXPECT_EQ(Pages[6].Body, "") << "stored at its leaving and not before";
}

TEST_F(Turning, ANewPageComesAtTheEndOfTheBook) {
  const auto row = AddJournal(std::vector<std::string>(11, "some text"));
  Open(row);
  for (int i = 0; i < 3; ++i) Press("btnNext");
  Type("My ");
  Press("btnNewPage");
  EXPECT_EQ(answers.last(), "Add (new) page 11?");
  EXPECT_EQ(CurrentPage, 3);
  EXPECT_EQ(TextsIn(row)[3], "some textMy ") << "the declined question does not undo the store";
  const auto box =
      platform::SetMessageAnswerer([](const platform::Message&) { return platform::Answer::Ok; });
  window().PageNew();
  platform::SetMessageAnswerer(box);
  EXPECT_EQ(CurrentPage, 11) << "anything but No adds the page";
  EXPECT_EQ(PageCount, 11);
}

TEST_F(Turning, WhatIsTypedNextHasTheJournalsFont) {
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
  text().SetSelStart(10);
  text().SetSelLength(1);
  EXPECT_EQ(text().SelFontName(), u"DejaVu Sans Mono");
  EXPECT_EQ(text().SelFontSize(), 20);
  EXPECT_EQ(text().SelItalic(), true);
  EXPECT_EQ(text().SelBold(), false);
  EXPECT_EQ(text().SelUnderline(), true);
  EXPECT_EQ(text().SelStrikeThru(), true);
  EXPECT_EQ(text().SelColor(), 0x0000FFu);
  text().SetSelStart(6);
  text().SetSelLength(4);
  EXPECT_EQ(text().SelBold(), true) << "earlier text keeps its own";
}

TEST_F(Turning, ANewJournalStartsOnItsTitlePageOrOnPageOne) {
  const auto row = AddJournal();
  Open(row);
  EXPECT_EQ(Header(), u"Title Page");
  EXPECT_EQ(PageCount, 1);
  EXPECT_EQ(Pages[0].PageDate, 45000.5);
  EXPECT_EQ(PageDirty, False);
  chkGotoLastPage = 1;
  Open(row);
  EXPECT_EQ(Header(), u"day 45000Page 1");
  EXPECT_FALSE(folder.Exists(FileOf(row)));
  Type("first words");
  Press("btnBack");
  EXPECT_EQ(TextsIn(row), (std::vector<std::string>{"never stored", "first words"}));
}

// At the first run the pages are made before any journal is chosen.
TEST_F(Turning, PagesOfNoJournalAreNeverSaved) {
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

}  // namespace
