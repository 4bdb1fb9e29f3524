#include "store/IndexFile.h"
#include "store/JournalIndex.h"
#include "store/Scrambler.h"
#include "tests/store/StoreTest.h"

namespace {

const std::string indexMagic = "ZANDOLK JOURNAL INDEX FILE V00003";

// "?e" is the scrambled name "a".
std::string Record(const std::string& fileName, const std::string& name = "?e") {
  return Counted(name) + Counted("") + Raw(7, 4) + Counted(fileName) + Raw(0, 2) + Raw(30, 4) +
         Counted("Verdana") + Raw(0x00800000, 4) + Raw(16, 4) + Raw(0xFFFF, 2) + Raw(0, 2) + Raw(0xFFFF, 2) +
         Raw(0, 2) + Raw(0x00C0FFFF, 4);
}
std::string Header(std::int32_t count, std::int32_t shift = 55, const std::string& password = "?t?q") {
  return indexMagic + Raw(count, 4) + Raw(std::ssize(password), 4) + password + Raw(shift, 4);
}

class IndexTest : public fixture::Desk {
 protected:
  void Load(const std::string& bytes) {
    answers.messages.clear();
    folder.Write("journal.tqt", bytes);
    LoadJournalIndex();
  }
  // The names and the files of the rows.
  static std::string Rows() {
    std::string rows;
    for (std::size_t row = 1; row < Journals.size(); ++row)
      rows += Journals[row].Name + ":" + Journals[row].FileName + " ";
    return rows;
  }
  void ExpectGivenUp(const std::string& bytes) {
    ResetState();
    end.count = 0;
    Load(bytes);
    EXPECT_EQ(end.count, 1);
    EXPECT_NE(answers.last().find("journal.tqt"), std::string::npos);
    EXPECT_EQ(std::to_string(Journals.size()) + MasterPassword, "1");
    EXPECT_EQ(folder.Read("journal.tqt"), bytes);
  }
};

}  // namespace

TEST_F(IndexTest, ReadsEachFieldFromItsPlace) {
  Load(std::string(33, '\xFF') + (Header(1) + Record("j00004.tqf")).substr(33));  // the start is never read
  ASSERT_EQ(Rows(), "a:j00004.tqf ");
  const JournalEntry& row = Journals[1];
  EXPECT_EQ(std::tuple(row.PageCount, row.Icon, row.FontName, row.FontColor, row.FontSize, row.PaperColor),
            std::tuple(7, 30, "Verdana", 0x800000u, 16, 0xC0FFFFu));
  EXPECT_EQ(std::tuple(row.FontBold, row.FontItalic, row.FontUnderline, row.FontStrikethru),
            std::tuple(True, False, True, False));
  EXPECT_EQ(UnscrambleText(MasterPassword), "pm");
  EXPECT_EQ(PageShift, 55);
  EXPECT_TRUE(answers.messages.empty());
}

TEST_F(IndexTest, ReadsTheSamplesAndWritesThemBack) {
  for (const auto& [sample, rows] :
       {std::pair{"1-first-diary", "My Diary:j00000.tqf "},
        {"2-three-journals", "Garden & house:j00000.tqf :j00002.tqf Never closed yet:j00005.tqf "}}) {
    const std::string bytes = Sample(sample + std::string("/journal.tqt"));
    Load(bytes);
    EXPECT_EQ(Rows(), rows);
    SaveJournalIndex();
    // The fillers of the names are new; with the old names in their place every byte is as it was.
    store::Index saved = store::DecodeIndex(folder.Read("journal.tqt")).index;
    for (std::size_t i = 0; i < saved.journals.size(); ++i)
      saved.journals[i].Name = store::DecodeIndex(bytes).index.journals[i].Name;
    EXPECT_EQ(store::EncodeIndex(saved), bytes);
    Load(folder.Read("journal.tqt"));
    EXPECT_EQ(Rows(), rows);
  }
}

TEST_F(IndexTest, LeavesRemovedRowsOutAndScramblesTheRest) {
  LoadJournalIndex();
  EXPECT_EQ(folder.Names(), fixture::Texts()) << "a missing file is left alone";
  MasterPassword = "?e";
  Journals.assign(3, {});
  JournalCount = 2;
  Journals[1].Name = "gone";
  Journals[1].Deleted = True;
  Journals[2].Name = "kept";
  SaveAndExit();
  EXPECT_EQ(end.count, 1);
  EXPECT_EQ(Journals[1].Name, "gone");
  EXPECT_EQ(UnscrambleText(Journals[2].Name), "kept");
  EXPECT_EQ(folder.Read("journal.tqt").substr(0, 47), Header(1, 0, "?e"));
}

TEST_F(IndexTest, EveryTruncationIsToldAndLosesNothing) {
  const std::string record = Record("j00000.tqf");
  const std::string whole = Header(2) + record + record;
  const std::size_t header = Header(2).size();
  for (std::size_t size = 0; size < header; ++size) ExpectGivenUp(whole.substr(0, size));
  end.count = 0;
  for (std::size_t size = header; size < whole.size(); ++size) {
    Load(whole.substr(0, size));
    EXPECT_EQ(std::size_t(JournalCount), (size - header) / record.size()) << size;
    EXPECT_EQ(Journals.size(), std::size_t(JournalCount) + 1);
    EXPECT_EQ(answers.messages.size(), 1u) << size;
  }
  EXPECT_EQ(end.count, 0);
}

TEST_F(IndexTest, GivesUpOnAHeaderThatCannotBe) {
  const std::string record = Record("j00000.tqf");
  for (const std::int32_t count : {-1, std::numeric_limits<std::int32_t>::min()})
    ExpectGivenUp(Header(count) + record);
  for (const std::int32_t shift : {-1, 256}) ExpectGivenUp(Header(1, shift) + record);
  for (const std::uint32_t length : {0xFFFFFFFFu, 0x80000000u, 0x7FFFFFFFu, 1000u})
    ExpectGivenUp(indexMagic + Raw(1, 4) + Raw(length, 4) + "?t" + Raw(55, 4) + record);
  // Noise would cost a box for each letter, again and again.
  ExpectGivenUp(Header(1, 55, std::string(100'000, '\0')) + record);
}

TEST_F(IndexTest, ReadsTheWholeRecordsAroundAbsurdOnesAndKeepsTheDamagedFileOnce) {
  std::string bytes = Header(0x7FFFFFFF) + Record("a.tqf");
  for (const std::string& name :
       {std::string("../a"), std::string("a\\b"), std::string("a\0b", 3), std::string("."), std::string(".."),
        std::string("journal.tqt"), std::string("tqpics.bin"), std::string(256, 'a')})
    bytes += Record(name);
  bytes += Record("b.tqf", std::string(65535, 'e')) + Record("c.tqf", std::string(100, '\1')) + Record("");
  Load(bytes);
  EXPECT_EQ(Rows(), "a:a.tqf a: ");
  EXPECT_EQ(answers.messages.size(), 1u);
  Load(Header(1) + Record("a.tqf") + "left over");
  EXPECT_EQ(answers.messages.size(), 1u);
  EXPECT_EQ(folder.Names().size(), 1u);
  for (int round = 0; round < 2; ++round) SaveJournalIndex();
  EXPECT_EQ(folder.Read("journal.tqt.damaged"), Header(1) + Record("a.tqf") + "left over");
  EXPECT_EQ(folder.Names().size(), 2u);
  Load(folder.Read("journal.tqt"));
  EXPECT_TRUE(answers.messages.empty());
}

TEST_F(IndexTest, ASaveThatFailsIsToldAndChangesNothing) {
  Load(Header(1) + Record("a.tqf"));
  Journals[1].FontName = std::string(65536, 'x');
  fixture::ExpectFailure(platform::FailureKind::InvalidArgument, "", [] { SaveJournalIndex(); });
  Journals[1].FontName.clear();
  platform::SetProgramFolder(folder.PathOf("missing"));
  SaveAndExit();
  EXPECT_EQ(end.count, 0);
  EXPECT_NE(answers.last().find("journal.tqt"), std::string::npos);
  EXPECT_EQ(Rows(), "a:a.tqf ");
}
