// Rows that are made: for the first journal, for another one, and for files that no row knows.
#include "store/JournalFile.h"
#include "store/LostJournals.h"
#include "store/NewJournals.h"
#include "store/Scrambler.h"
#include "tests/store/StoreTest.h"

namespace {

using platform::FailureKind;
using NewJournalsTest = fixture::Desk;

JournalEntry NewRow(const std::string& name, const std::string& file, std::int32_t pages) {
  return {name, "", pages, file, False, 1, "Verdana", 0, 16, False, False, False, False, 0xFFFFFF};
}

// A row for each number below `count`, with its number's file.
void FillRows(std::size_t count) {
  Journals.assign(count + 1, {});
  JournalCount = static_cast<std::int32_t>(count);
  for (std::size_t i = 0; i < count; ++i)
    Journals[i + 1].FileName = "j" + std::to_string(100'000 + i).substr(1) + ".tqf";
}

TEST_F(NewJournalsTest, TheFirstJournalSettlesPasswordAndKey) {
  for (const std::size_t length : {std::size_t{0}, MaxPasswordLength + 1})
    fixture::ExpectFailure(FailureKind::InvalidArgument, "",
                           [&] { MakeFirstJournal("a", std::string(length, 'p')); });
  EXPECT_EQ(JournalCount, 0);
  MakeFirstJournal(" My <Diary> ", "secret\xE9");
  MakeJournal("Second");
  EXPECT_EQ(UnscrambleText(MasterPassword), "secret\xE9");
  EXPECT_EQ(PageShift, 0xE9);
  EXPECT_EQ(Journals, (std::vector<JournalEntry>{
                          {}, NewRow(" My <Diary> ", "j00000.tqf", 1), NewRow("Second", "j00001.tqf", 1)}));
  EXPECT_EQ(folder.Names(), fixture::Texts());
}

TEST_F(NewJournalsTest, TakesTheFirstNameThatNeitherFileFolderNorRowHas) {
  folder.Write("j00000.tqf", "");
  folder.Block("j00001.tqf");
  FillRows(4);
  Journals[1].FileName = Journals[2].FileName = "";
  Journals[4].Deleted = True;
  EXPECT_EQ(FindFreeJournalFile(), "j00004.tqf");
  FillRows(99'999);
  EXPECT_EQ(FindFreeJournalFile(), "j99999.tqf");
  FillRows(100'000);
  MakeJournal("One too many");
  EXPECT_EQ(answers.texts(), fixture::Texts{"Error, unable to find free journal file name."});
  EXPECT_EQ(Journals.back().FileName, "");
}

TEST_F(NewJournalsTest, EachFileIsAdoptedThatNoRowMeansToTheLetter) {
  const auto journalOf = [](std::size_t pages) {
    return store::EncodeJournal(std::vector<JournalPage>(pages), "?e");
  };
  folder.Write("j00000.tqf", journalOf(2));
  folder.Write("J00000.tqf", "an alien");
  folder.Write("holiday.TQF", journalOf(3));
  folder.Write("Caf\xC3\xA9.tqf", journalOf(6));
  for (const char* other : {"notes.txt", ".hidden.tqf", "\xFF.tqf", "\xD0\x96.tqf", "a.tqf.bak"})
    folder.Write(other, "");
  folder.Block("folder.tqf");
  FillRows(1);
  std::string told;
  JournalAdded = [&](std::int32_t row) { told += Journals.at(static_cast<std::size_t>(row)).FileName + " "; };
  for (int round = 0; round < 2; ++round) RecoverLostJournals();
  EXPECT_EQ(told, "Caf\xE9.tqf J00000.tqf holiday.TQF ");
  EXPECT_EQ(JournalCount, 4);
  EXPECT_EQ(Journals.at(2), NewRow("Recovered Lost Journal (Caf\xE9.tqf)", "Caf\xE9.tqf", 5));
  EXPECT_EQ(std::tuple(Journals[3].PageCount, Journals[4].PageCount), std::tuple(0, 2));
  EXPECT_TRUE(answers.messages.empty());
}

}  // namespace
