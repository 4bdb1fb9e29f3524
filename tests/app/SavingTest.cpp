// A long journal, whose file is written while the person goes on.
#include <filesystem>
#include <map>

#include "editor/SavingPages.h"
#include "look/frmWait.h"
#include "store/JournalFile.h"
#include "store/JournalSaving.h"
#include "tests/app/Journey.h"
#include "tests/app/SlowDisk.h"

namespace {

using fixture::areJournalsHeld;
using fixture::journalsOnTheirWay;
using fixture::Texts;

const std::string file = "j00000.tqf", unfinished = file + ".thornquill-unfinished";

class Saving : public fixture::Journey {
 protected:
  // Two written pages, and a third that makes the file a long one. The first is on show.
  Saving() {
    StartAndWrite("One ");
    LeaveTheProgram();
    store::DecodedJournal journal = store::ReadJournalFile(file);
    journal.pages.push_back(journal.pages[1]);
    journal.pages.push_back({std::string(store::LongFile, ' '), 40000});
    store::WriteJournalFile(file, journal.pages);
    OpenAtAStart();
  }
  ~Saving() override {
    areJournalsHeld = false;
    AwaitSaving();
  }

  void OpenAtAStart() {
    answers.messages.clear();
    Start();
    Enter("Rosebud7");
    chkGotoLastPage = 0;
    OpenTheJournal();
    Press("btnNext");
    AwaitSaving();  // the blank title page has been left
  }
  static void Press(const char* key) { Click(Book().Toolbar1->Button(QLatin1String(key))); }
  static void Type(const char* text) { QTest::keyClicks(Book().face->txtM, QLatin1String(text)); }
  // Writes on the page on show and turns it; its file gets no further than to the disk.
  void LeavePage(const char* text, const char* key) {
    areJournalsHeld = true;
    Type(text);
    Press(key);
    EXPECT_TRUE(QTest::qWaitFor([] { return journalsOnTheirWay == 1; }));
  }
  static void LetItThrough() {
    areJournalsHeld = false;
    AwaitSaving();
  }
  // What the pages of the file hold, but for the long one.
  Texts Stored() {
    Texts texts;
    richtext::RichTextBox box;
    for (const JournalPage& page : store::ReadJournalFile(file).pages) {
      std::string plain(page.Body.size() / 2, '\0');
      store::Decipher(page.Body, PageShift, plain.data());
      if (page.Body.size() < store::LongFile) box.SetTextRTF(plain);
      texts.push_back(page.Body.size() < store::LongFile ? box.Text().toStdString() : "long");
    }
    return texts;
  }
  using Files = std::map<std::string, std::string>;
  Files WhatAKillLeaves() const {
    Files files;
    for (const std::string& name : folder.Names()) files[name] = folder.Read(name);
    return files;
  }
  Texts AfterAStartOn(const Files& files) {
    EndTheLog();
    for (const std::string& name : folder.Names()) std::filesystem::remove(folder.PathOf(name));
    for (const auto& [name, bytes] : files) folder.Write(name, bytes);
    OpenAtAStart();
    return Stored();
  }
};

TEST_F(Saving, TheNextPageShowsWhenTheLogHasThePageAndOneFileIsOnItsWay) {
  const std::string before = folder.Read(file);
  LeavePage("two ", "btnNext");
  EXPECT_EQ(Book().face->lblPageNum1->text(), u"Page 2");
  EXPECT_EQ(folder.Names(), (Texts{file, unfinished, "journal.tql", "journal.tqt"}));
  EXPECT_EQ(folder.Read(file), before);
  EXPECT_TRUE(PagesUnsaved);
  for (const char* key : {"btnBack", "btnNext", "btnBack"}) {
    Type("more ");
    Press(key);
  }
  QTest::qWait(20);
  EXPECT_EQ(journalsOnTheirWay, 1);
  LetItThrough();
  EXPECT_EQ(Stored(), (Texts{"", "One two more ", "One more more ", "long"}));
  EXPECT_FALSE(PagesUnsaved);
  EXPECT_TRUE(QTest::qWaitFor([&] { return folder.Names() == Texts({file, "journal.tqt"}); }));
  LeavePage("three ", "btnNext");
  areJournalsHeld = false;
  EXPECT_TRUE(QTest::qWaitFor([] { return !store::IsSaving(); })) << "out of the event loop";
  EXPECT_EQ(Stored()[1], "One two more three ");
  EXPECT_EQ(answers.texts(), Texts());
}

// What is written on the page that is on its way began from two states of it, and from a third when that is
// left once more.
TEST_F(Saving, AKillFindsEachWordOnceOnItsPage) {
  LeavePage("two ", "btnNext");
  const Files turned = WhatAKillLeaves();
  Press("btnBack");
  Type("three ");
  ASSERT_TRUE(BringTheLogUpToDate());
  std::vector<Files> kills = {turned, WhatAKillLeaves()};
  Press("btnNext");
  Press("btnBack");
  Type("four ");
  ASSERT_TRUE(BringTheLogUpToDate());
  kills.push_back(WhatAKillLeaves());
  areJournalsHeld = false;
  store::WaitForSaving(std::chrono::hours(1));
  kills.push_back(WhatAKillLeaves());  // the first is there, and nobody has heard of it
  store::TakeSaved();
  store::WaitForSaving(std::chrono::hours(1));
  kills.push_back(WhatAKillLeaves());
  AwaitSaving();
  ASSERT_TRUE(BringTheLogUpToDate());
  kills.push_back(WhatAKillLeaves());
  const Texts pages = {"One two ", "One two three ", "One two three four "};
  for (std::size_t kill = 0; kill < kills.size(); ++kill)
    EXPECT_EQ(AfterAStartOn(kills[kill]), (Texts{"", pages[std::min<std::size_t>(kill, 2)], "One ", "long"}))
        << kill;
}

TEST_F(Saving, WhatFailsIsToldWhenItComesAndStaysInTheLog) {
  folder.Block(unfinished);
  Type("two ");
  Press("btnNext");
  EXPECT_EQ(Book().face->lblPageNum1->text(), u"Page 2");
  EXPECT_TRUE(QTest::qWaitFor([&] { return !answers.messages.empty(); }));
  EXPECT_TRUE(answers.last().starts_with("Page Encryption Error:")) << answers.last();
  EXPECT_NE(answers.last().find("Nothing is lost: the page stays in the open journal"), std::string::npos);
  EXPECT_TRUE(PagesUnsaved && folder.Exists("journal.tql"));
  Book().close();
  EXPECT_TRUE(Book().isVisible() && answers.last().starts_with("The journal's file j00000.tqf could not be"));
  folder.Unblock(unfinished);
  Book().close();
  EXPECT_FALSE(Book().isVisible());
  EXPECT_EQ(Stored()[1], "One two ");
}

TEST_F(Saving, WhatAnotherProgramPutsThereMeanwhileIsKept) {
  LeavePage("two ", "btnNext");
  folder.Write(file, folder.Read(file) + "x");
  LetItThrough();
  EXPECT_EQ(Stored()[1], "One two ");
  EXPECT_TRUE(folder.Exists(file + ".1.other"));
  EXPECT_NE(answers.last().find("was changed by another program"), std::string::npos) << answers.last();
}

TEST_F(Saving, AClosingWaitsWithItsWindowAndWritesOnce) {
  LeavePage("two ", "btnNext");
  bool isSeen = false;
  QTimer::singleShot(1200, [&] {
    isSeen = look::The<look::frmWait>().isVisible();
    areJournalsHeld = false;
  });
  Book().close();
  EXPECT_TRUE(isSeen);
  EXPECT_FALSE(Book().isVisible() || look::The<look::frmWait>().isVisible());
  EXPECT_EQ(Stored()[1], "One two ");
}

// All ways out of the program wait.
TEST_F(Saving, TheEndOfTheProgramWaits) {
  for (const auto& [text, leave] : {std::pair<const char*, void (*)()>{"two ", &LeaveTheProgram},
                                    {"three ", &SaveWithoutDisplay},
                                    {"four ", [] { EXPECT_TRUE(SaveAndStay()); }},
                                    {"five ", &StoreOnFailure}}) {
    SCOPED_TRACE(text);
    LeavePage(text, "btnNext");
    std::thread later([] {
      usleep(100'000);
      areJournalsHeld = false;
    });
    leave();
    later.join();
    EXPECT_FALSE(store::IsSaving());
    EXPECT_TRUE(Stored()[1].ends_with(text)) << Stored()[1];
    OpenAtAStart();
  }
}

}  // namespace
