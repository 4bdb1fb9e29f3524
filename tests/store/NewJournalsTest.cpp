#include "store/NewJournals.h"
#include "store/Scrambler.h"
#include "tests/store/StoreTest.h"

namespace {

using platform::FailureKind;
using NewJournalsTest = StoreTest;

// As many rows as there are numbers from 0 to `count`, each with its number's name.
void FillRows(int count) {
  Journals.assign(count + 1, {});
  JournalCount = count;
  for (int i = 0; i < count; ++i) {
    Journals[i + 1].FileName = "j" + std::to_string(100'000 + i).substr(1) + ".tqf";
  }
}

}  // namespace

TEST_F(NewJournalsTest, TheFirstJournalSettlesPasswordAndKey) {
  std::vector<std::int32_t> told;
  JournalAdded = [&](std::int32_t row) { told.push_back(row); };
  MakeFirstJournal(" My <Diary> ", "secret\xE9");
  ASSERT_EQ(JournalCount, 1);
  ASSERT_EQ(Journals.size(), 2u);
  EXPECT_EQ(UnscrambleText(MasterPassword), "secret\xE9");
  EXPECT_EQ(PageShift, 0xE9);
  const JournalEntry& entry = Journals[1];
  EXPECT_EQ(entry.Name, " My <Diary> ");
  EXPECT_EQ(entry.FileName, "j00000.tqf");
  EXPECT_EQ(entry.FontName, "Verdana");
  EXPECT_EQ(entry.FontSize, 16);
  EXPECT_EQ(entry.PageCount, 1);
  EXPECT_EQ(entry.Icon, 1);
  EXPECT_EQ(entry.PaperColor, 0xFFFFFFu);
  MakeJournal("Second");
  EXPECT_EQ(Journals.at(2).FileName, "j00001.tqf");
  EXPECT_EQ(Journals[1].Name, " My <Diary> ");
  EXPECT_EQ(PageShift, 0xE9);
  EXPECT_EQ(told, (std::vector<std::int32_t>{1, 2}));
  EXPECT_EQ(folder.Names(), std::vector<std::string>());
}

TEST_F(NewJournalsTest, RefusesAPasswordThatNoFileHasRoomFor) {
  for (const std::size_t length : {std::size_t{0}, MaxPasswordLength + 1}) {
    ExpectFailure(FailureKind::InvalidArgument, [&] { MakeFirstJournal("a", std::string(length, 'p')); });
    EXPECT_EQ(JournalCount, 0);
  }
  MakeFirstJournal("a", std::string(MaxPasswordLength, 'A'));
  EXPECT_EQ(PageShift, 65);
}

TEST_F(NewJournalsTest, PassesOverNamesOfFilesFoldersAndRows) {
  folder.Write("j00000.tqf", "");
  FillRows(3);
  Journals[3].Deleted = True;
  Journals[2].FileName = "j00002.tqf";
  Journals[3].FileName = "j00003.tqf";
  EXPECT_EQ(FindFreeJournalFile(), "j00001.tqf");
  QDir().mkdir(QString::fromStdString(folder.PathOf("j00001.tqf")));
  EXPECT_EQ(FindFreeJournalFile(), "j00004.tqf");
}

TEST_F(NewJournalsTest, TellsWhenAllNamesAreTaken) {
  FillRows(99'999);
  EXPECT_EQ(FindFreeJournalFile(), "j99999.tqf");
  FillRows(100'000);
  MakeJournal("One too many");
  EXPECT_EQ(answers.texts(), std::vector<std::string>{"Error, unable to find free journal file name."});
  EXPECT_EQ(Journals.back().FileName, "");
  EXPECT_EQ(Journals.back().Name, "One too many");
}

TEST_F(NewJournalsTest, RemovesTheFileAndMarksTheRow) {
  MakeFirstJournal("a", "p");
  MakeJournal("b");
  folder.Write("j00000.tqf", "pages");
  folder.Write("j00001.tqf", "pages");
  RemoveJournal(1);
  EXPECT_EQ(folder.Names(), std::vector<std::string>{"j00001.tqf"});
  EXPECT_EQ(Journals[1].Deleted, True);
  EXPECT_EQ(FindFreeJournalFile(), "j00002.tqf");
  RemoveJournal(1);  // the file is gone already
  for (const std::int32_t row : {0, 3}) {
    ExpectFailure(FailureKind::SubscriptOutOfRange, [&] { RemoveJournal(row); });
  }
  platform::SetProgramFolder("/proc/self");  // whose files nobody can delete
  Journals[2].FileName = "stat";
  EXPECT_THROW(RemoveJournal(2), platform::Failure);
  EXPECT_EQ(Journals[2].Deleted, False);
}
