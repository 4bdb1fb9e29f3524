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
std::string Header(std::uint32_t count, std::uint32_t shift = 55, const std::string& password = "?t?q") {
  return indexMagic + Raw(count, 4) + Raw(password.size(), 4) + password + Raw(shift, 4);
}

class IndexTest : public StoreTest {
 protected:
  void Load(const std::string& bytes) {
    folder.Write("journal.tqt", bytes);
    LoadJournalIndex();
  }
  // The file names of the rows.
  static std::string Rows() {
    std::string names;
    for (std::int32_t row = 1; row <= JournalCount; ++row) names += Journals.at(row).FileName + " ";
    return names;
  }
  void ExpectGivenUp(const std::string& bytes) {
    ResetState();
    const int endsBefore = end.count;
    Load(bytes);
    EXPECT_EQ(end.count, endsBefore + 1);
    EXPECT_NE(answers.last().find("journal.tqt"), std::string::npos);
    EXPECT_EQ(Journals.size(), 1u);
    EXPECT_EQ(JournalCount, 0);
    EXPECT_EQ(MasterPassword, "");
    EXPECT_EQ(folder.Read("journal.tqt"), bytes);
  }
};

}  // namespace

TEST_F(IndexTest, ReadsEachFieldFromItsPlace) {
  std::vector<std::int32_t> told;
  JournalAdded = [&](std::int32_t row) { told.push_back(row); };
  Load(Header(1) + Record("j00004.tqf"));
  ASSERT_EQ(Rows(), "j00004.tqf ");
  const JournalEntry& entry = Journals[1];
  EXPECT_EQ(entry.Name, "a");
  EXPECT_EQ(entry.PageCount, 7);
  EXPECT_EQ(entry.Icon, 30);
  EXPECT_EQ(entry.FontName, "Verdana");
  EXPECT_EQ(entry.FontColor, 0x800000u);
  EXPECT_EQ(entry.FontSize, 16);
  EXPECT_EQ(entry.FontBold, True);
  EXPECT_EQ(entry.FontItalic, False);
  EXPECT_EQ(entry.FontUnderline, True);
  EXPECT_EQ(entry.PaperColor, 0xC0FFFFu);
  EXPECT_EQ(UnscrambleText(MasterPassword), "pm");
  EXPECT_EQ(PageShift, 55);
  EXPECT_EQ(told, std::vector<std::int32_t>{1});
  EXPECT_TRUE(answers.messages.empty());
}

TEST_F(IndexTest, ReadsTheSamplesAndWritesThemBack) {
  for (const std::string sample : {"1-first-diary", "2-three-journals"}) {
    const std::string bytes = Sample(sample + "/journal.tqt");
    Load(bytes);
    const auto names = [] {
      std::string all;
      for (const JournalEntry& entry : Journals) all += entry.Name + "|";
      return all;
    };
    EXPECT_EQ(names(), sample[0] == '1' ? "|My Diary|" : "|Garden & house||Never closed yet|");
    EXPECT_EQ(UnscrambleText(MasterPassword), sample[0] == '1' ? "Rosebud7" : "changed later");
    EXPECT_EQ(PageShift, sample[0] == '1' ? 55 : 65);
    SaveJournalIndex();
    // The fillers of the names are new; with the old names in their place every byte is as it was.
    store::Index saved = store::DecodeIndex(folder.Read("journal.tqt")).index;
    const store::Index before = store::DecodeIndex(bytes).index;
    for (std::size_t i = 0; i < saved.journals.size(); ++i) {
      EXPECT_EQ(UnscrambleText(saved.journals[i].Name), UnscrambleText(before.journals[i].Name));
      saved.journals[i].Name = before.journals[i].Name;
    }
    EXPECT_EQ(store::EncodeIndex(saved), bytes);
  }
}

TEST_F(IndexTest, NeverLooksAtTheFirstBytesAndLeavesAMissingFileAlone) {
  LoadJournalIndex();
  EXPECT_EQ(folder.Names(), std::vector<std::string>());
  Load(std::string(33, '\xFF') + (Header(1) + Record("a.tqf")).substr(33));
  EXPECT_EQ(Rows(), "a.tqf ");
  EXPECT_TRUE(answers.messages.empty());
}

TEST_F(IndexTest, LeavesRemovedRowsOutAndScramblesTheRest) {
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
  EXPECT_EQ(folder.Read("journal.tqt").substr(0, 47), indexMagic + Raw(1, 4) + Raw(2, 4) + "?e" + Raw(0, 4));
  Journals[2].Deleted = True;
  SaveJournalIndex();
  EXPECT_EQ(folder.Read("journal.tqt"), Header(0, 0, "?e"));
}

TEST_F(IndexTest, EveryTruncationIsToldAndLosesNothing) {
  const std::string record = Record("j00000.tqf");
  const std::string whole = Header(2) + record + record;
  const std::size_t header = Header(2).size();
  for (std::size_t size = 0; size < header; ++size) ExpectGivenUp(whole.substr(0, size));
  end.count = 0;
  for (std::size_t size = header; size < whole.size(); ++size) {
    answers.messages.clear();
    Load(whole.substr(0, size));
    EXPECT_EQ(std::size_t(JournalCount), (size - header) / record.size()) << size;
    EXPECT_EQ(Journals.size(), std::size_t(JournalCount) + 1);
    EXPECT_EQ(answers.messages.size(), 1u) << size;
  }
  EXPECT_EQ(end.count, 0);
}

TEST_F(IndexTest, GivesUpOnAHeaderThatCannotBe) {
  const std::string record = Record("j00000.tqf");
  ExpectGivenUp(Header(-1) + record);
  ExpectGivenUp(Header(0x80000000u) + record);
  ExpectGivenUp(Header(1, 256) + record);
  ExpectGivenUp(Header(1, -1) + record);
  for (const std::uint32_t length : {0xFFFFFFFFu, 0x80000000u, 0x7FFFFFFFu, 1000u}) {
    ExpectGivenUp(indexMagic + Raw(1, 4) + Raw(length, 4) + "?t" + Raw(55, 4) + record);
  }
  ExpectGivenUp(Header(1, 55, std::string(100'000, '\0')) +
                record);  // a box for each letter, again and again
}

TEST_F(IndexTest, ReadsTheWholeRecordsAroundAbsurdOnes) {
  std::string bytes = Header(0x7FFFFFFF) + Record("a.tqf");
  const std::string absurd[] = {"../a", "a\\b",        std::string("a\0b", 3), ".",
                                "..",   "journal.tqt", std::string(256, 'a')};
  for (const std::string& name : absurd) bytes += Record(name);
  bytes += Record("b.tqf", std::string(65535, 'e')) + Record("c.tqf", std::string(100, '\1'));
  Load(bytes + Record(""));
  EXPECT_EQ(Rows(), "a.tqf  ");
  EXPECT_EQ(answers.messages.size(), 1u);
}

TEST_F(IndexTest, KeepsADamagedFileBesideOnce) {
  const std::string damaged = Header(1) + Record("a.tqf") + "left over";
  Load(damaged);
  EXPECT_EQ(folder.Read("journal.tqt"), damaged);
  SaveJournalIndex();
  EXPECT_EQ(folder.Read("journal.tqt.damaged"), damaged);
  EXPECT_EQ(store::DecodeIndex(folder.Read("journal.tqt")).health, store::IndexHealth::Sound);
  SaveJournalIndex();
  EXPECT_EQ(folder.Names().size(), 2u);
}

TEST_F(IndexTest, ASaveThatFailsIsToldAndChangesNothing) {
  Load(Header(1) + Record("a.tqf"));
  QFile::remove(QString::fromStdString(folder.PathOf("journal.tqt")));
  QDir().mkdir(QString::fromStdString(folder.PathOf("journal.tqt")));
  SaveAndExit();
  EXPECT_EQ(end.count, 0);
  EXPECT_NE(answers.last().find("journal.tqt"), std::string::npos);
  EXPECT_EQ(Journals[1].Name, "a");
  Journals[1].FontName = std::string(65536, 'x');
  ExpectFailure(platform::FailureKind::InvalidArgument, [] { SaveJournalIndex(); });
  platform::SetProgramFolder(folder.PathOf("missing"));
  Journals[1].FontName = "Verdana";
  EXPECT_THROW(SaveJournalIndex(), platform::Failure);
  EXPECT_EQ(Journals[1].Name, "a");
}
