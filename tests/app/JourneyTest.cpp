// The program from its start to its end, and what the next start finds.
#include "look/Pass.h"
#include "tests/app/Journey.h"

namespace {

using fixture::Journey;

TEST_F(Journey, AFirstRunThatIsLeftLeavesNothingBehind) {
  Start([](frmInitJournal& dialog) { QTest::keyClick(dialog.txtNewPass, Qt::Key_Escape); });
  EXPECT_EQ(end.count, 1);
  EXPECT_FALSE(look::IsLoaded<frmInitJournal>());
  EXPECT_TRUE(folder.Names().empty());
}

TEST_F(Journey, AStartBesideOneThatDoesNotAnswerTellsSoAndTouchesNothing) {
  folder.Write("j00000.tqf.thornquill-unfinished", "of the other one");
  folder.Write("journal.tqt", "of the other one");
  platform::FolderLock other(folder.path());
  EXPECT_EQ(other.Take(), platform::FolderLock::Reply::Ours);
  platform::RunningInstance second(std::chrono::milliseconds(100));
  Main(second, {});
  EXPECT_EQ(end.count, 1);
  ASSERT_EQ(answers.messages.size(), 1u);
  EXPECT_NE(answers.last().find("which does not answer:\n" + folder.path() + "\n"), std::string::npos);
  EXPECT_EQ(folder.Names(), (fixture::Texts{"j00000.tqf.thornquill-unfinished", "journal.tqt"}));
  EXPECT_EQ(folder.Read("journal.tqt"), "of the other one");
  EXPECT_FALSE(look::IsLoaded<frmPass>() || look::IsLoaded<frmInitJournal>());
}

TEST_F(Journey, AFirstRunChecksItsEntriesInOrderAndChangesNothingMeanwhile) {
  const std::string longest(128, 'a'), tooLong(129, 'a');
  const struct {
    std::string name, password, again, message;
    bool clears = false;
  } entries[] = {{"", "", "x", "Please enter a name for this journal!"},
                 {"n", "", "x", "Please enter a password!"},
                 {"n", "Abc", "abc", "Password entries do not match!", true},
                 {"n", tooLong, tooLong, "The password has 129 characters. It can have at most 128."}};
  Start([&](frmInitJournal& dialog) {
    for (const auto& entry : entries) {
      Fill(dialog, entry.name, entry.password, entry.again);
      EXPECT_EQ(answers.last(), entry.message);
      EXPECT_EQ(std::to_string(JournalCount) + MasterPassword, "0");
      EXPECT_EQ(dialog.txtNewPass->text().toStdString(), entry.clears ? "" : entry.password);
      EXPECT_EQ(dialog.txtNewPass2->text().toStdString(), entry.clears ? "" : entry.again);
    }
    Fill(dialog, " My Diary ", longest, longest);
  });
  EXPECT_EQ(answers.messages.size(), std::size(entries));
  EXPECT_EQ(Journals.at(1).Name, " My Diary ");
  EXPECT_EQ(PageShift, 'a');
  for (const char* file : {"journal.tqt", "j00000.tqf"}) EXPECT_FALSE(folder.Exists(file)) << "the log aside";
}

TEST_F(Journey, EveryExitOfTheLockSavesTheIndex) {
  StartAndWrite("");
  LeaveTheProgram();
  const std::function<void()> exits[] = {[] { Lock().close(); },
                                         [] { QTest::keyClick(Lock().txtPass, Qt::Key_Escape); },
                                         [] { QTest::keyClick(&Lock(), Qt::Key_X, Qt::AltModifier); }};
  for (const auto& leave : exits) {
    const std::string before = folder.Read("journal.tqt");
    Start();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Lock()));
    leave();
    EXPECT_TRUE(QTest::qWaitFor([this] { return end.count == 1; }));  // a mnemonic presses the button first
    EXPECT_NE(folder.Read("journal.tqt"), before) << "other fillers";
  }
}

TEST_F(Journey, AFailureThatNobodyGuardsStoresThePageAndNotTheIndex) {
  StartAndWrite("Last words");
  auto& application = static_cast<platform::Application&>(*qApp);
  application.SetLastWill(&StoreOnFailure);
  QTimer::singleShot(0, [] { throw platform::Failure(platform::FailureKind::PathNotFound, "somewhere"); });
  QTest::qWait(50);
  application.SetLastWill({});
  EXPECT_EQ(answers.texts(), fixture::Texts{"Path not found: somewhere"});
  EXPECT_EQ(end.count, 1);
  EXPECT_EQ(folder.Names(), (fixture::Texts{"j00000.tqf", "journal.tql"})) << "the log has the index";
}

// A good index that could not be read must never be replaced by the empty bookcase in memory, whatever else
// ends the program while the message is up.
TEST_F(Journey, AnUnreadableIndexEndsTheStartWithNothingWritten) {
  const std::string headless = "ZANDOLK JOURNAL INDEX FILE V00003\x01";
  folder.Write("journal.tqt", headless);
  for (const auto& meanwhile : {std::function<void()>([] {}), std::function<void()>(&LeaveTheProgram),
                                std::function<void()>(&SaveWithoutDisplay)}) {
    platform::SetMessageAnswerer([&](const platform::Message& message) {
      answers.messages.push_back(message);
      meanwhile();
      return platform::Answer::Ok;
    });
    Start();
    EXPECT_GE(end.count, 1);
    EXPECT_NE(answers.last().find("journal.tqt"), std::string::npos);
    EXPECT_EQ(folder.Read("journal.tqt"), headless);
  }
}

TEST_F(Journey, ALostDisplayStoresThePageAndTheIndex) {
  StartAndWrite("Typed before the display went");
  SaveWithoutDisplay();
  ExpectAtTheNextStart(QStringLiteral("Typed before the display went"));
}

TEST_F(Journey, AnUnchangedBookcaseCanBeLeftThoughItCannotBeSaved) {
  StartAndWrite("");
  LeaveTheProgram();
  Start();
  ASSERT_TRUE(QFile::remove(QString::fromStdString(folder.PathOf("journal.tqt"))));
  folder.Block("journal.tqt");
  Click(Lock().cmdCancel);
  EXPECT_EQ(end.count, 1);
  EXPECT_NE(answers.last().find("nothing new to save"), std::string::npos) << answers.last();
}

// A dialog that stands over the journal while the order to end comes must find it as it was, should the end
// not come.
TEST_F(Journey, AnOrderToEndSavesAndForgetsNothing) {
  StartAndWrite("Under a calendar");
  QTimer::singleShot(0, [this] {
    folder.Block("journal.tqt");
    LeaveTheProgram();
    EXPECT_EQ(end.count, 1) << "what can be saved is saved, and nobody is asked";
    folder.Unblock("journal.tqt");
    Click(look::The<frmCal>().cmdSetDate);
  });
  Click(Book().Toolbar1->Button(QStringLiteral("btnCal")));
  EXPECT_TRUE(Book().isVisible());
  EXPECT_EQ(Journals.at(1).Name, "My Diary") << "readable, for a program that goes on";
  EXPECT_TRUE(answers.texts().empty());
  LeaveTheProgram();
  end.count = 1;
  ExpectAtTheNextStart(QStringLiteral("Under a calendar"));
}

TEST_F(Journey, ASaveInTheMiddleOfTheSessionIsNoEnd) {
  StartAndWrite("Before a checkpoint");
  std::optional<look::Pass> pass(std::in_place);
  EXPECT_FALSE(SaveAndStay());
  EXPECT_FALSE(folder.Exists("j00000.tqf"));
  pass.reset();
  EXPECT_TRUE(QTest::qWaitFor([this] { return folder.Exists("journal.tqt"); })) << "behind the pass";
  EXPECT_EQ(folder.Names(), (fixture::Texts{"j00000.tqf", "journal.tqt"})) << "and all is stored";
  EXPECT_EQ(end.count, 0);
  EXPECT_EQ(Journals.at(1).Name, "My Diary");
  Journals[1].Icon = 2;
  folder.Block("journal.tqt.thornquill-unfinished");
  EXPECT_TRUE(SaveAndStay());
  EXPECT_TRUE(answers.texts().empty());
  EXPECT_TRUE(QTest::qWaitFor([this] { return !answers.texts().empty(); }));
  EXPECT_NE(answers.last().find("could not be saved in journal.tqt"), std::string::npos);
  folder.Unblock("journal.tqt.thornquill-unfinished");
  LeaveTheProgram();
  ExpectAtTheNextStart(QStringLiteral("Before a checkpoint"));
}

TEST_F(Journey, EachFileIsTriedOnItsOwnAndTheSecondRefusalAsks) {
  StartAndWrite("");
  Book().close();
  Pictures.resize(2);
  PicturesUnsaved = true;
  folder.Block("tqpics.bin");
  auto& bookcase = look::The<frmBookcase>();
  Click(bookcase.cmdClose);
  EXPECT_TRUE(folder.Exists("journal.tqt")) << "the other file keeps it from nothing";
  ASSERT_EQ(answers.messages.size(), 1U);
  EXPECT_NE(answers.last().find("could not be saved in tqpics.bin"), std::string::npos);
  Click(bookcase.cmdClose);
  EXPECT_NE(answers.last().find("the next start brings it back. Leave now?"), std::string::npos)
      << answers.last();
  EXPECT_NE(answers.last().find("tqpics.bin"), std::string::npos);
  EXPECT_EQ(answers.last().find("journal.tqt"), std::string::npos) << "this one was saved";
  EXPECT_TRUE(answers.messages.back().prefersNo);
  EXPECT_EQ(end.count, 0);
  answers.yes = 1;
  Click(bookcase.cmdClose);
  EXPECT_EQ(end.count, 1);
}

TEST_F(Journey, AJournalThatCannotBeWrittenClosesWhenNothingIsMissedOrOnDemand) {
  StartAndWrite("");
  folder.Block("j00000.tqf");
  Book().close();
  EXPECT_FALSE(Book().isVisible()) << "nobody has written anything";
  EXPECT_TRUE(answers.texts().empty());
  folder.Unblock("j00000.tqf");
  OpenTheJournal();
  QTest::keyClicks(Book().face->txtM, QStringLiteral("Missed"));
  folder.Block("j00000.tqf");
  Book().close();
  EXPECT_NE(answers.last().find("close it once more"), std::string::npos) << answers.last();
  Book().close();
  EXPECT_NE(answers.last().find("not in the file: page 1."), std::string::npos) << answers.last();
  EXPECT_TRUE(Book().isVisible());
  answers.yes = 1;
  Book().close();
  EXPECT_FALSE(Book().isVisible());
  folder.Unblock("j00000.tqf");
  Click(look::The<frmBookcase>().cmdClose);
  ExpectAtTheNextStart(QStringLiteral("Missed"));
}

}  // namespace
