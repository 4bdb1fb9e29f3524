#include "store/IndexFile.h"
#include "store/JournalIndex.h"
#include "store/Scrambler.h"
#include "tests/store/StoreTest.h"

namespace {

const std::string magic = "ZANDOLK JOURNAL INDEX FILE V00003", name = "journal.tqt";

// "?e" is the scrambled name "a".
std::string Record(const std::string& fileName, const std::string& scrambled = "?e") {
  return Counted(scrambled) + Counted("") + Raw(7, 4) + Counted(fileName) + Raw(0, 2) + Raw(30, 4) +
         Counted("Verdana") + Raw(0x00800000, 4) + Raw(16, 4) + Raw(0xFFFF, 2) + Raw(0, 2) + Raw(0xFFFF, 2) +
         Raw(0, 2) + Raw(0x00C0FFFF, 4);
}
std::string Header(std::int32_t count, std::int32_t shift = 55, const std::string& password = "?t?q") {
  return magic + Raw(count, 4) + Raw(std::ssize(password), 4) + password + Raw(shift, 4);
}

class IndexTest : public fixture::Desk {
 protected:
  // The names and the files of the rows.
  std::string Load(const std::string& bytes) {
    answers.messages.clear();
    folder.Write(name, bytes);
    LoadJournalIndex();
    std::string rows;
    for (std::size_t row = 1; row < Journals.size(); ++row)
      rows += Journals[row].Name + ":" + Journals[row].FileName + " ";
    return rows;
  }
  void ExpectGivenUp(const std::string& bytes) {
    ResetState();
    const int ends = end.count;
    EXPECT_EQ(Load(bytes) + MasterPassword, "");
    EXPECT_EQ(end.count, ends + 1);
    EXPECT_NE(answers.last().find(name), std::string::npos);
    EXPECT_EQ(folder.Read(name), bytes);
  }
};

TEST_F(IndexTest, ReadsEachFieldFromItsPlace) {
  const std::string bytes = Header(1) + Record("j00004.tqf");
  EXPECT_EQ(Load(std::string(33, '\xFF') + bytes.substr(33)), "a:j00004.tqf ") << "the start is never read";
  EXPECT_EQ(Journals.at(1), (JournalEntry{"a", "", 7, "j00004.tqf", False, 30, "Verdana", 0x800000, 16, True,
                                          False, True, False, 0xC0FFFF}));
  EXPECT_EQ(UnscrambleText(MasterPassword), "pm");
  EXPECT_EQ(PageShift, 55);
  EXPECT_EQ(store::EncodeIndex(store::DecodeIndex(bytes).index), bytes);
  EXPECT_TRUE(answers.messages.empty());
}

TEST_F(IndexTest, LeavesRemovedRowsOutAndScramblesTheRest) {
  LoadJournalIndex();
  EXPECT_EQ(folder.Names(), fixture::Texts()) << "a missing file is left alone";
  MasterPassword = "?e";
  Journals.assign(3, {});
  Journals[1].Name = "gone";
  Journals[1].Deleted = True;
  Journals[2].Name = "kept";
  JournalCount = 2;
  SaveAndExit();
  EXPECT_EQ(end.count, 1);
  EXPECT_EQ(Journals[1].Name, "gone");
  EXPECT_EQ(UnscrambleText(Journals[2].Name), "kept");
  EXPECT_EQ(folder.Read(name).substr(0, 47), Header(1, 0, "?e"));
}

TEST_F(IndexTest, GivesUpOnAHeaderThatIsCutOrCannotBe) {
  const std::string record = Record("j00000.tqf"), whole = Header(2) + record + record;
  for (std::size_t size = 0; size < Header(2).size(); ++size) ExpectGivenUp(whole.substr(0, size));
  for (const std::int32_t count : {-1, std::numeric_limits<std::int32_t>::min()})
    ExpectGivenUp(Header(count) + record);
  for (const std::int32_t shift : {-1, 256}) ExpectGivenUp(Header(1, shift) + record);
  for (const std::uint32_t length : {0xFFFFFFFFu, 0x80000000u, 0x7FFFFFFFu, 1000u})
    ExpectGivenUp(magic + Raw(1, 4) + Raw(length, 4) + "?t" + Raw(55, 4) + record);
  // Noise would cost a box for each letter, again and again.
  ExpectGivenUp(Header(1, 55, std::string(100'000, '\0')) + record);
}

TEST_F(IndexTest, ReadsTheWholeRecordsAroundAbsurdOnesAndKeepsTheDamagedFileOnce) {
  std::string bytes = Header(0x7FFFFFFF) + Record("a.tqf");
  for (const std::string& absurd :
       {std::string("../a"), std::string("a\\b"), std::string("a\0b", 3), std::string("."), std::string(".."),
        name, std::string("tqpics.bin"), std::string(256, 'a')})
    bytes += Record(absurd);
  bytes += Record("b.tqf", std::string(65535, 'e')) + Record("c.tqf", std::string(100, '\1')) + Record("");
  EXPECT_EQ(Load(bytes), "a:a.tqf a: ");
  EXPECT_EQ(answers.messages.size(), 1u);
  EXPECT_EQ(Load(Header(2) + Record("a.tqf") + Record("cut").substr(1)), "a:a.tqf ");
  const std::string damaged = Header(1) + Record("a.tqf") + "left over";
  Load(damaged);
  EXPECT_EQ(answers.messages.size(), 1u);
  EXPECT_EQ(folder.Names().size(), 1u);
  for (int round = 0; round < 2; ++round) SaveJournalIndex();
  EXPECT_EQ(folder.Read("journal.tqt.damaged"), damaged);
  EXPECT_EQ(folder.Names().size(), 2u);
  Load(folder.Read(name));
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
  EXPECT_NE(answers.last().find(name), std::string::npos);
  EXPECT_EQ(Journals[1].Name, "a");
}

}  // namespace
