#include "store/BookcaseFile.h"
#include "store/BookcaseIndex.h"
#include "store/Scrambler.h"
#include "tests/store/StoreTest.h"

namespace {

const std::string name = "journal.tqt";

// "?e" is the scrambled name "a".
JournalEntry Entry(const std::string& fileName, const std::string& scrambled = "?e") {
  return {scrambled, "", 0, fileName, False, 0, {}};
}
std::string Bytes(const std::vector<JournalEntry>& journals, const std::string& password = "?t?q") {
  return store::EncodeBookcaseIndex({password, 55, journals});
}

class BookcaseFileTest : public fixture::Desk {
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
    end.count = 0;
    EXPECT_EQ(Load(bytes) + MasterPassword, "");
    EXPECT_EQ(end.count, 1);
    EXPECT_NE(answers.last().find(name), std::string::npos);
    EXPECT_EQ(folder.Read(name), bytes);
  }
};

TEST_F(BookcaseFileTest, ReadsEachFieldFromItsPlace) {
  const std::string sample = Sample("2-three-journals/journal.tqt");
  EXPECT_EQ(store::EncodeBookcaseIndex(store::DecodeBookcaseIndex(sample).index), sample);
  EXPECT_EQ(Load(std::string(33, '\xFF') + sample.substr(33)),
            "Garden & house:j00000.tqf :j00002.tqf Never closed yet:j00005.tqf ")
      << "the start is never read";
  EXPECT_EQ(Journals.at(1),
            (JournalEntry{"Garden & house", "", 120, "j00000.tqf", False, 7, "Times New Roman", 0x800000, 12,
                          False, True, False, False, 0xC0FFFF}));
  EXPECT_EQ(std::tuple(Journals[2].FontBold, Journals[2].FontUnderline, Journals[3].FontStrikethru),
            std::tuple(True, True, True));
  EXPECT_EQ(std::pair(UnscrambleText(MasterPassword), PageShift),
            std::pair(std::string("changed later"), 65));
  EXPECT_TRUE(answers.messages.empty());
}

TEST_F(BookcaseFileTest, LeavesRemovedRowsOutAndScramblesTheRestWhenTheyAreSaved) {
  MasterPassword = "?e";
  Journals = {{}, Entry("", "gone"), Entry("", "kept")};
  Journals[1].Deleted = True;
  JournalCount = 2;
  for (const std::string& font : {std::string(65536, 'x'), std::string()}) {
    Journals[2].FontName = font;
    EXPECT_EQ(Journals[2].Name, "kept");
    try {
      SaveJournalIndex();
    } catch (const platform::Failure&) {
      EXPECT_FALSE(font.empty());
    }
  }
  EXPECT_EQ(UnscrambleText(Journals[2].Name), "kept");
  EXPECT_EQ(Load(folder.Read(name)) + MasterPassword, "kept: ?e");
}

TEST_F(BookcaseFileTest, GivesUpOnAHeaderThatIsCutOrCannotBe) {
  constexpr std::size_t count = 33, length = 37, shift = 45, header = 49;
  const std::string bytes = Bytes({Entry("a.tqf"), Entry("b.tqf")});
  for (std::size_t size = 0; size < header; ++size) ExpectGivenUp(bytes.substr(0, size));
  for (const std::size_t field : {count, length, shift}) ExpectGivenUp(With(bytes, field, 0xFFFFFFFF));
  ExpectGivenUp(With(bytes, shift, 256));
  ExpectGivenUp(With(bytes, length, 1000));
  // Noise would cost a box for each letter, again and again.
  ExpectGivenUp(Bytes({Entry("a.tqf")}, std::string(100'000, '\0')));
}

TEST_F(BookcaseFileTest, ReadsTheWholeRecordsAroundAbsurdOnesAndKeepsTheDamagedFileOnce) {
  std::vector<JournalEntry> journals = {Entry("a.tqf")};
  for (const std::string& absurd :
       {std::string("../a"), std::string("a\\b"), std::string("a\0b", 3), std::string(".."), name,
        std::string("journal.tql"), std::string(256, 'a'), std::string("a.tqf.1.other")})
    journals.push_back(Entry(absurd));
  for (const std::string& noise : {std::string(65535, 'e'), std::string(100, '\1')})
    journals.push_back(Entry("b.tqf", noise));
  journals.push_back(Entry(""));
  EXPECT_EQ(Load(Bytes(journals)), "a:a.tqf a: ");
  const std::string sound = Bytes({Entry("a.tqf"), Entry("b.tqf")});
  EXPECT_EQ(Load(sound.substr(0, sound.size() - 1)), "a:a.tqf ");
  folder.Write("journal.tqt.damaged", "an older one");
  Load(sound + "left over");
  ASSERT_EQ(answers.messages.size(), 1u);
  EXPECT_NE(answers.last().find("is kept as journal.tqt.1.damaged before"), std::string::npos)
      << answers.last();
  EXPECT_EQ(folder.Names().size(), 2u);
  for (int round = 0; round < 2; ++round) SaveJournalIndex();
  EXPECT_EQ(folder.Read("journal.tqt.1.damaged"), sound + "left over");
  EXPECT_EQ(folder.Names().size(), 3u);
  Load(folder.Read(name));
  EXPECT_TRUE(answers.messages.empty());
}

TEST_F(BookcaseFileTest, KeepsAnIndexThatAnotherProgramPutThere) {
  Load(Bytes({Entry("a.tqf")}));
  const std::string others = Bytes({Entry("a.tqf"), Entry("b.tqf")});
  folder.Write(name, others);
  SaveJournalIndex();
  EXPECT_EQ(folder.Read(name + ".1.other"), others);
  EXPECT_FALSE(IsSameBookcase(folder.Read(name), others));
  EXPECT_TRUE(IsSameBookcase(folder.Read(name), Bytes({Entry("a.tqf")})));
  EXPECT_EQ(answers.messages.size(), 1u);
  ResetState();
  EXPECT_EQ(Load(folder.Read(name)), "a:a.tqf ");
}

}  // namespace
