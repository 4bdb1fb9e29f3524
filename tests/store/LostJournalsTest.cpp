#include "store/JournalFile.h"
#include "store/LostJournals.h"
#include "tests/store/StoreTest.h"

namespace {

using LostJournals = fixture::Desk;

std::string JournalOf(std::size_t pages) {
  return store::EncodeJournal(std::vector<JournalPage>(pages), "?e");
}

TEST_F(LostJournals, AdoptsEachFileThatNoRowMeansToTheLetter) {
  folder.Write("j00000.tqf", JournalOf(2));
  folder.Write("J00000.tqf", "an alien");
  folder.Write("holiday.TQF", JournalOf(3));
  folder.Write("Caf\xC3\xA9.tqf", JournalOf(6));
  folder.Write("notes.txt", "");
  folder.Block("folder.tqf");
  Journals.assign(2, {});
  JournalCount = 1;
  Journals[1].FileName = "j00000.tqf";
  std::string told;
  JournalAdded = [&](std::int32_t row) { told += Journals.at(static_cast<std::size_t>(row)).FileName + " "; };

  RecoverLostJournals();
  EXPECT_EQ(told, "Caf\xE9.tqf J00000.tqf holiday.TQF ");
  ASSERT_EQ(Journals.size(), 5u);
  EXPECT_EQ(JournalCount, 4);
  const JournalEntry& row = Journals[2];
  EXPECT_EQ(row.Name, "Recovered Lost Journal (Caf\xE9.tqf)");
  EXPECT_EQ(std::tuple(row.Icon, row.FontName, row.FontSize, row.PaperColor),
            std::tuple(1, "Verdana", 16, 0xFFFFFFu));
  EXPECT_EQ(std::tuple(row.PageCount, Journals[3].PageCount, Journals[4].PageCount), std::tuple(5, 0, 2));
  EXPECT_TRUE(answers.messages.empty());

  RecoverLostJournals();
  EXPECT_EQ(JournalCount, 4);
}

}  // namespace
