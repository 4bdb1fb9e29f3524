// Pages that were written under another last letter of the first password.
#include "look/Pass.h"
#include "tests/editor/OpenBook.h"

namespace {

using fixture::Texts;

class AlienPages : public fixture::OpenBook {
 protected:
  std::int32_t AddAlienJournal(const Texts& texts) {
    const std::int32_t own = std::exchange(PageShift, 90);
    const std::int32_t row = AddJournal(texts);
    PageShift = own;
    return row;
  }
  Texts BodiesIn(std::int32_t row) {
    Texts bodies;
    for (const JournalPage& page : store::ReadJournalFile(FileOf(row)).pages) bodies.push_back(page.Body);
    return bodies;
  }
  void TryToChangeThePage() {
    Type("x");
    QTest::keyClick(&text(), Qt::Key_V, Qt::ControlModifier);
    text().selectAll();
    text().SetSelBold(true);
    EXPECT_EQ(PageDirty, False);
    PageInHand::TextChanged();
    StoreCurrentPage();
    StoreOpenPage();
  }
};

TEST_F(AlienPages, AreToldOnceForEachOpeningAndNeverWrittenOver) {
  const auto row = AddAlienJournal({"cover", "one", "", "three"});
  Texts bodies = BodiesIn(row);
  Open(row);
  EXPECT_EQ(answers.last().find("The title page of this journal cannot be read here."), 0u);
  EXPECT_NE(answers.last().find("j1.tqf"), std::string::npos);
  for (const bool readOnly : {true, true, false, true}) {
    EXPECT_EQ(text().isReadOnly(), readOnly) << CurrentPage;
    readOnly ? TryToChangeThePage() : Type("mine");
    if (CurrentPage < PageCount) Press("btnNext");
  }
  answers.yes = 1;
  Press("btnNewPage");
  Type("new");
  window().CloseBox();
  EXPECT_EQ(TextsIn(row)[2] + TextsIn(row)[4], "minenew");
  Texts after = BodiesIn(row);
  bodies[2] = after[2];
  after.pop_back();
  EXPECT_EQ(after, bodies);
  EXPECT_EQ(answers.messages.size(), 2u) << "the one, and the question for the new page";
  chkGotoLastPage = 1;
  Open(row);
  EXPECT_EQ(answers.messages.size(), 2u);
  Press("btnBack");
  EXPECT_EQ(answers.last().find("Page 3 of this journal cannot be read here."), 0u);
  Open(AddJournal());
  Type("mine");
  EXPECT_EQ(Text(), "mine") << "the next journal can be written";
}

TEST_F(AlienPages, AreNotToldInAPassAndBlanksBeforeADocumentMakeNone) {
  const auto row = Begin({"cover", "one", "two"});
  for (const char* start : {" \r\n\t{\\rtf1 word}", "\xEF\xBB\xBF{\\rtf1 word}", "{\\urtf1 word}", "  "}) {
    std::string body(std::strlen(start) * 2, '\0');
    store::Encipher(start, PageShift, body.data());
    Pages[1].Body = body;
    GoNextPage();
    Type("my ");
    Press("btnBack");
    EXPECT_NE(TextsIn(row)[1].find("my "), std::string::npos) << start;
  }
  Pages[1].Body = std::string("noise of an odd length.");
  {
    const look::Pass pass;
    GoNextPage();
    EXPECT_TRUE(answers.messages.empty()) << answers.last();
  }
  ShowCurrentPage();
  EXPECT_EQ(answers.messages.size(), 1u);
}

}  // namespace
