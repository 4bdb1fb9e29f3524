#include "store/NewJournals.h"
#include "store/Scrambler.h"
#include "tests/store/StoreTest.h"

namespace {

using platform::FailureKind;
using NewJournalsTest = fixture::Desk;

// As many rows as there are numbers from 0 to `count`, each with its number's file.
void FillRows(std::size_t count) {
  Journals.assign(count + 1, {});
  JournalCount = static_cast<std::int32_t>(count);
  for (std::size_t i = 0; i < count; ++i)
    Journals[i + 1].FileName = "j" + std::to_string(100'000 + i).substr(1) + ".tqf";
}

}  // namespace

TEST_F(NewJournalsTest, TheFirstJournalSettlesPasswordAndKey) {
  for (const std::size_t length : {std::size_t{0}, MaxPasswordLength + 1}) {
    fixture::ExpectFailure(FailureKind::InvalidArgument, "",
                           [&] { MakeFirstJournal("a", std::string(length, 'p')); });
    EXPECT_EQ(JournalCount, 0);
  }
  MakeFirstJournal(" My <Diary> ", "secret\xE9");
  MakeJournal("Second");
  ASSERT_EQ(Journals.size(), 3u);
  EXPECT_EQ(UnscrambleText(MasterPassword), "secret\xE9");
  EXPECT_EQ(PageShift, 0xE9);
  const JournalEntry& entry = Journals[1];
  EXPECT_EQ(std::tuple(entry.Name, entry.FileName, entry.FontName, entry.FontSize, entry.PageCount,
                       entry.Icon, entry.PaperColor),
            std::tuple(" My <Diary> ", "j00000.tqf", "Verdana", 16, 1, 1, 0xFFFFFFu));
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
