// What the log of a run that ended too soon brings to the next one.
#include <cerrno>
#include <filesystem>
#include <sys/syscall.h>

#include "bookcase/frmBookcase.h"
#include "editor/OpenJournal.h"
#include "pictures/modPictures.h"
#include "store/PictureStore.h"
#include "store/UnstoredLog.h"
#include "tests/app/Journey.h"
#include "tests/app/SlowDisk.h"

namespace {

using fixture::isFolderUncertain;
using fixture::Journey;
using fixture::slowness;
using fixture::Texts;

class Log : public Journey {
 protected:
  void ClearFolder() {
    EndTheLog();
    for (const std::string& name : folder.Names()) std::filesystem::remove_all(folder.PathOf(name));
    answers.messages.clear();
  }
  // A diary of one journal with "Mine " on its page, in a folder of its own.
  void StartWithAFile() {
    ClearFolder();
    StartAndWrite("Mine ");
    LeaveTheProgram();
    OpenAtAStart();
  }
  void OpenAtAStart() {
    Start();
    Enter("Rosebud7");
    OpenTheJournal();
  }
  // What a kill finds in the folder; the next Start comes behind it.
  static void TypeAndLog(const char* text) {
    QTest::keyClicks(Book().face->txtM, QLatin1String(text));
    ASSERT_TRUE(BringTheLogUpToDate());
  }
  // The journal is closed though its file cannot be written.
  void LeavePagesInTheLog() {
    StartWithAFile();
    TypeAndLog("more ");
    const std::string journal = folder.PathOf("j00000.tqf"), away = folder.PathOf("away");
    std::filesystem::rename(journal, away);
    folder.Block("j00000.tqf");
    answers.yes = 1;
    Book().close();
    Book().close();
    EXPECT_FALSE(Book().isVisible());
    folder.Unblock("j00000.tqf");
    std::filesystem::rename(away, journal);
  }
  std::vector<store::UnstoredJournal> Logged() {
    return store::DecodeLog(folder.Read("journal.tql")).log.journals;
  }
  bool IsTold(const std::string& words) const {
    return std::ranges::any_of(answers.texts(),
                               [&](const std::string& text) { return text.find(words) != text.npos; });
  }
};

// As a kill does, nothing is saved between what was typed and the next start.
TEST_F(Log, WhatAKillLeavesInTheLogComesBack) {
  StartAndWrite("First words");
  ASSERT_TRUE(QTest::qWaitFor([this] { return folder.Exists("journal.tql"); }, 30000));
  ASSERT_TRUE(BringTheLogUpToDate());
  EXPECT_EQ(folder.Names(), fixture::Texts{"journal.tql"});
  folder.Block("journal.tqt.thornquill-unfinished");
  Start();
  EXPECT_TRUE(IsTold("could not be brought back: the bookcase: ")) << answers.last();
  EXPECT_FALSE(look::IsLoaded<frmInitJournal>()) << "a new diary over the old one";
  folder.Unblock("journal.tqt.thornquill-unfinished");
  ExpectAtTheNextStart(QStringLiteral("First words"));
  EXPECT_NE(answers.last().find("the bookcase\nMy Diary: page 1"), std::string::npos) << answers.last();
  EXPECT_FALSE(folder.Exists("journal.tql")) << "nothing is unstored";

  QTest::keyClicks(Book().face->txtM, QStringLiteral("Second "));
  ASSERT_TRUE(BringTheLogUpToDate());
  end.count = 1;
  ExpectAtTheNextStart(QStringLiteral("Second First words"));
  MasterPassword = "Tulip9";
  ASSERT_TRUE(BringTheLogUpToDate());
  folder.Block("journal.tqt.thornquill-unfinished");
  Start();
  EXPECT_FALSE(look::IsLoaded<frmPass>()) << "it would ask for the password before";
  folder.Unblock("journal.tqt.thornquill-unfinished");
  Start();
  Enter("Tulip9");
  OpenTheJournal();
  Click(Book().Toolbar1->Button(QStringLiteral("btnFirstPage")));
  LeaveTheProgram();
  EXPECT_EQ(folder.Names(), (fixture::Texts{"j00000.tqf", "journal.tqt"})) << "a sound end leaves no log";
}

TEST_F(Log, ALogThatIsDamagedOrComesTooLateChangesNothingAndIsKept) {
  StartAndWrite("Mine ");
  Click(Book().Toolbar1->Button(QStringLiteral("btnFirstPage")));
  Click(Book().Toolbar1->Button(QStringLiteral("btnLastPage")));
  QTest::keyClicks(Book().face->txtM, QStringLiteral("more "));
  ASSERT_TRUE(BringTheLogUpToDate());
  const std::string log = folder.Read("journal.tql"), index = "journal.tqt", journal = "j00000.tqf";
  LeaveTheProgram();
  const std::string stored = folder.Read(journal);
  for (std::string damaged : {log.substr(0, log.size() / 2), "x" + log, std::string(40, '\0')}) {
    folder.Write("journal.tql", damaged);
    Start();
    EXPECT_NE(answers.last().find("kept beside as journal.tql"), std::string::npos) << answers.last();
    EXPECT_EQ(folder.Read(journal), stored);
    EXPECT_FALSE(folder.Exists("journal.tql"));
    EndTheLog();
  }
  answers.messages.clear();
  folder.Write("journal.tql", log);
  end.count = 1;
  ExpectAtTheNextStart(QStringLiteral("Mine more "));
  EXPECT_EQ(folder.Read(journal), stored) << "the log is older than the file, and told nothing new";
  EXPECT_TRUE(answers.texts().empty()) << answers.last();
}

TEST_F(Log, PagesThatAreLeftBehindComeBackWhateverIsDoneMeanwhile) {
  const std::pair<const char*, std::function<void()>> meanwhile[] = {
      {"a sound leave", [] { Click(look::The<frmBookcase>().cmdClose); }},
      {"an order to end", [] { LeaveTheProgram(); }},
      {"a kill", [] {}},
      {"opened again", [] { OpenTheJournal(); }},
      {"another one opened", [] {
         Journals.push_back(Journals[1]);
         JournalCount = Staged().CurrentJournal = 2;
         LoadJournalFile(Journals[2].FileName = "j00001.tqf");
       }}};
  for (const auto& [name, step] : meanwhile) {
    SCOPED_TRACE(name);
    LeavePagesInTheLog();
    step();
    EXPECT_EQ(Logged().size(), 1u);
    OpenAtAStart();
    EXPECT_EQ(Book().face->txtM->Text(), u"more Mine ");
    EXPECT_TRUE(IsTold("My Diary: page 1")) << answers.last();
  }
}

TEST_F(Log, PagesThatAreLeftBehindFollowTheirFile) {
  LeavePagesInTheLog();
  std::filesystem::remove(folder.PathOf("j00000.tqf"));
  OpenTheJournal();
  EXPECT_EQ(Book().face->txtM->Text(), u"more Mine ") << "without its file";
  Book().close();
  EXPECT_TRUE(folder.Exists("j00000.tqf"));
  LeavePagesInTheLog();
  Pictures.resize(1);  // without a picture store a deletion is the end of the program
  PicturesUnsaved = true;
  folder.Block("tqpics.bin");
  for (int refusal = 0; refusal < 2; ++refusal) Click(look::The<frmBookcase>().cmdClose);
  EXPECT_TRUE(IsTold("\n\nMy Diary: page 1\n\n")) << answers.last();
  folder.Unblock("tqpics.bin");
  answers.yes = 1;
  Click(look::The<frmBookcase>().cmdDelete);
  ASSERT_TRUE(BringTheLogUpToDate());
  EXPECT_TRUE(Logged().empty()) << "a deleted journal takes them along";
  LeaveTheProgram();
  EXPECT_EQ(folder.Names(), (Texts{"journal.tqt", "tqpics.bin"}));
}

TEST_F(Log, DamagedFilesAreKeptAndTheLogsTakeTheirPlace) {
  StartWithAFile();
  LeaveTheProgram();
  std::vector<PagePicture> rows(2);
  rows[1].PictureFile = "/a";
  const std::string index = folder.Read("journal.tqt"), pictures = store::EncodePictureStore(rows);
  folder.Write("journal.tqt", index.substr(0, index.size() - 3));
  folder.Write("tqpics.bin", pictures + "x");
  OpenAtAStart();
  Pictures.at(1).Top = 7;
  PicturesUnsaved = true;
  TypeAndLog("more ");
  answers.messages.clear();
  const std::string journal = folder.Read("j00000.tqf");
  folder.Write("j00000.tqf", journal + "x");
  OpenAtAStart();
  EXPECT_EQ(Book().face->txtM->Text(), u"more Mine ");
  EXPECT_EQ(Pictures.at(1).Top, 7);
  EXPECT_EQ(folder.Names(), (Texts{"j00000.tqf", "j00000.tqf.damaged", "journal.tqt", "journal.tqt.damaged",
                                   "tqpics.bin", "tqpics.bin.damaged"}));
  EXPECT_EQ(folder.Read("j00000.tqf.damaged"), journal + "x");
  EXPECT_TRUE(IsTold("j00000.tqf is damaged")) << answers.last();
  EXPECT_EQ(answers.messages.size(), 2u) << "the others were told of when they were read";
}

TEST_F(Log, TheOlderPictureStoreGoesWhenTheLogHasIt) {
  StartWithAFile();
  LeaveTheProgram();
  const auto startWithTheOlder = [this] {
    QFile::copy(QString::fromStdString(fixture::PathOfSample("4-older-pictures/jpics.bin")),
                QString::fromStdString(folder.PathOf("jpics.bin")));
    OpenAtAStart();
    ASSERT_EQ(Pictures.at(1).Top, 64);
  };
  startWithTheOlder();
  EXPECT_FALSE(folder.Exists("jpics.bin") || folder.Exists("tqpics.bin"));
  OpenAtAStart();
  EXPECT_EQ(Pictures.at(1).Top, 64) << "out of the log";
  EXPECT_TRUE(folder.Exists("tqpics.bin"));
  Pictures.at(1).Top = 7;
  PicturesUnsaved = true;
  TypeAndLog("more ");
  startWithTheOlder();
  EXPECT_TRUE(IsTold("jpics.bin is there, and is read instead")) << answers.last();
  EXPECT_TRUE(folder.Exists("journal.tql.damaged"));
}

TEST_F(Log, ALogThatCannotBeReadMakesRoomForANewOneOrTellsWhyNot) {
  StartWithAFile();
  LeaveTheProgram();
  folder.Block("journal.tql");
  OpenAtAStart();
  EXPECT_EQ(folder.Names("journal.tql.damaged"), Texts{"full"});
  TypeAndLog("more ");
  const std::string log = folder.Read("journal.tql");
  Start();
  for (const std::string& left : {log, log.substr(1)}) {
    LeaveTheProgram();
    std::filesystem::remove_all(folder.PathOf("journal.tql.damaged"));
    folder.Write("journal.tql", left);
    const Texts names = folder.Names();
    RunPowerless(folder, [&] {
      chmod(folder.path().c_str(), 0500);
      answers.messages.clear();
      OpenAtAStart();
      EXPECT_TRUE(IsTold("The log journal.tql stays as it is, since it could not be removed. Permission"))
          << answers.last();
      QTest::keyClicks(Book().face->txtM, QStringLiteral("lost"));
      EXPECT_FALSE(BringTheLogUpToDate());
      EXPECT_EQ(folder.Names(), names);
      EXPECT_EQ(folder.Read("journal.tql"), left);
      chmod(folder.path().c_str(), 0700);
      OpenAtAStart();
    });
    EXPECT_EQ(Book().face->txtM->Text(), u"more Mine ") << "there already where the log is damaged";
  }
}

TEST_F(Log, WhatThePowerCouldStillTakeAwayHasComeBackAndItsLogIsKept) {
  StartWithAFile();
  TypeAndLog("more ");
  isFolderUncertain = true;
  OpenAtAStart();
  isFolderUncertain = false;
  EXPECT_EQ(Book().face->txtM->Text(), u"more Mine ");
  EXPECT_TRUE(IsTold("its log:\nMy Diary: page 1\n\nOf these the disk could not yet confirm"))
      << answers.last();
  EXPECT_TRUE(folder.Exists("journal.tql.damaged"));
}

TEST_F(Log, ASoundEndWaitsForASlowDisk) {
  StartWithAFile();
  QTest::keyClicks(Book().face->txtM, QStringLiteral("more "));
  slowness = 200'000;
  SomethingWasStored();
  EXPECT_TRUE(QTest::qWaitFor([&] { return folder.Names().size() == 3; })) << "the log is on its way";
  RemoveTheLog();
  slowness = 0;
  EXPECT_EQ(folder.Names(), (Texts{"j00000.tqf", "journal.tqt"}));
}

}  // namespace

void HoldJournal(int descriptor) {
  const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
  std::error_code error;
  if (std::filesystem::read_symlink(link, error).string().find(".tqf") == std::string::npos) return;
  ++fixture::journalsOnTheirWay;
  while (fixture::areJournalsHeld) usleep(100);
  --fixture::journalsOnTheirWay;
}

extern "C" int fsync(int descriptor) {
  usleep(slowness);
  HoldJournal(descriptor);
  struct stat entry {};
  if (isFolderUncertain && fstat(descriptor, &entry) == 0 && S_ISDIR(entry.st_mode)) {
    errno = EIO;
    return -1;
  }
  return static_cast<int>(syscall(SYS_fsync, descriptor));
}
