// Rows that are made: for the first journal, for another one, and for files that no row knows.
#include <filesystem>
#include <fstream>

#include "store/LostJournals.h"
#include "store/NewJournals.h"
#include "store/Scrambler.h"
#include "tests/store/StoreTest.h"

namespace {

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
    fixture::ExpectFailure(platform::FailureKind::InvalidArgument, "",
                           [&] { MakeFirstJournal("a", std::string(length, 'p')); });
  EXPECT_EQ(JournalCount, 0);
  MakeFirstJournal(" My <Diary> ", "secret\xE9");
  MakeJournal("Second");
  EXPECT_EQ(UnscrambleText(MasterPassword), "secret\xE9");
  EXPECT_EQ(PageShift, 0xE9);
  EXPECT_EQ(Journals, (std::vector<JournalEntry>{
                          {}, NewRow(" My <Diary> ", "j00000.tqf", 1), NewRow("Second", "j00001.tqf", 1)}));
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
  EXPECT_EQ(FindFreeJournalFile(), "");
  EXPECT_EQ(answers.texts(), fixture::Texts{"Error, unable to find free journal file name."});
}

// One that another row's link leads to is that row's, too; of two second names the other one stays.
TEST_F(NewJournalsTest, AFileIsSharedByRowsThatLoseItTogether) {
  FillRows(3);
  folder.Write("j00000.tqf", "pages");
  std::filesystem::create_symlink("j00000.tqf", folder.PathOf("j00001.tqf"));
  EXPECT_TRUE(IsFileShared(1));
  EXPECT_FALSE(IsFileShared(2)) << "the link can go";
  std::filesystem::remove(folder.PathOf("j00001.tqf"));
  std::filesystem::create_hard_link(folder.PathOf("j00000.tqf"), folder.PathOf("j00002.tqf"));
  EXPECT_FALSE(IsFileShared(1));
}

TEST_F(NewJournalsTest, EachFileIsAdoptedThatNoRowMeansToTheLetter) {
  for (const char* name : {"j00000.tqf", "J00000.tqf", "holiday.tqf", "notes.TXT"})
    folder.Write(name, Sample(std::string("5-strays/") + name));
  folder.Write("Caf\xC3\xA9.TQF", Sample("5-strays/j00007.tqf"));
  folder.Write("below.tqf", With(Sample("5-strays/j00007.tqf"), 539, 0xFFFFFFFF));
  for (const char* other : {".hidden.tqf", "\xFF.tqf", "\xD0\x96.tqf", "a\\b.tqf", "a.tqf.bak"})
    std::ofstream(folder.PathOf(other));
  folder.Block("folder.tqf");
  FillRows(1);
  std::string told;
  JournalAdded = [&](std::int32_t row) { told += Journals.at(static_cast<std::size_t>(row)).FileName + " "; };
  for (int round = 0; round < 2; ++round) RecoverLostJournals();
  EXPECT_EQ(told, "Caf\xE9.TQF J00000.tqf below.tqf holiday.tqf ");
  EXPECT_EQ(Journals.at(2), NewRow("Recovered Lost Journal (Caf\xE9.TQF)", "Caf\xE9.TQF", 5));
  EXPECT_EQ(std::tuple(Journals.at(3).PageCount, Journals.at(4).PageCount, Journals.at(5).PageCount),
            std::tuple(0, 0, 2));
  EXPECT_TRUE(answers.messages.empty());
  TellLeftOutJournals();
  EXPECT_NE(answers.last().find(
                "\n\n\xD0\x96.tqf (in its name: \xD0\x96)\n\xEF\xBF\xBD.tqf (in its name: bytes that "
                "are no letters)\na\\b.tqf (in its name: \\)\n\nThey"),
            std::string::npos)
      << answers.last();
  EXPECT_EQ(answers.messages.size(), 1u);
  std::filesystem::remove(folder.PathOf("\xFF.tqf"));  // the toolkit cannot, at the end
}

}  // namespace
