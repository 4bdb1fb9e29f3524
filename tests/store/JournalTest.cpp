#include "store/JournalFile.h"
#include "store/JournalSaving.h"
#include "store/Scrambler.h"
#include "tests/store/StoreTest.h"

namespace {

using platform::FailureKind;

const std::string fileName = "j00000.tqf";
constexpr std::size_t countPlace = 539, headerSize = 543;

class JournalTest : public fixture::Desk {
 protected:
  // The bytes of a file of these pages.
  std::string Encoded(const std::vector<JournalPage>& pages) const {
    MasterPassword = "?e";
    store::WriteJournalFile("encoded.tqf", pages);
    std::string bytes = folder.Read("encoded.tqf");
    platform::DeleteFile(folder.PathOf("encoded.tqf"));
    return bytes;
  }
  store::DecodedJournal Decode(const std::string& bytes) {
    folder.Write(fileName, bytes);
    return store::ReadJournalFile(fileName);
  }
  // "health rows/whole pages".
  std::string Outline(const std::string& bytes) {
    const auto [pages, health, wholePages] = Decode(bytes);
    const char* healths[] = {"sound ", "damaged ", "alien "};
    return healths[static_cast<int>(health)] + std::to_string(pages.size()) + "/" +
           std::to_string(wholePages);
  }
  // Row 1 of the bookcase with its journal open on these pages.
  void Open(std::vector<JournalPage> pages) {
    MasterPassword = "?e";
    Journals.assign(2, {});
    Journals[1].FileName = fileName;
    JournalCount = Staged().PagesJournal = Staged().CurrentJournal = 1;
    Pages = std::move(pages);
    PageCount = static_cast<std::int32_t>(Pages.size()) - 1;
  }
  // The password's block in the file of the open journal, which is saved.
  std::string SavedBlock() {
    SaveJournalFile(fileName);
    return folder.Read(fileName).substr(countPlace - 512, 512);
  }
  void ExpectRefused(FailureKind kind, const std::string& name = fileName) {
    const std::string bytes = folder.Read(fileName);
    const auto before = folder.Names();
    fixture::ExpectFailure(kind, "", [&] { SaveJournalFile(name); });
    // cppcheck-suppress knownConditionTrueFalse  ; the names are read from the disk once more
    EXPECT_EQ(folder.Names(), before);
    EXPECT_EQ(folder.Read(fileName), bytes);
  }
  const std::string threePages = Encoded({{"ab", 1.5}, {"ab", 1.5}, {"ab", 1.5}});
};

TEST_F(JournalTest, PagesOfEveryLengthComeBackAndTheSamplesByteForByte) {
  for (const auto& [path, shift] :
       {std::pair{"1-first-diary/j00000.tqf", 55}, {"2-three-journals/j00000.tqf", 65}}) {
    const std::string sample = Sample(path);
    const std::vector<JournalPage> pages = Decode(sample).pages;
    const std::string written = Encoded(pages);
    EXPECT_EQ(written.substr(0, 27) + written.substr(countPlace),
              sample.substr(0, 27) + sample.substr(countPlace));
    EXPECT_EQ(Deciphered(pages.at(1).Body, shift).substr(0, 5), "{\\rtf");
  }
  for (const std::size_t length : {0U, 65534U, 65535U}) {
    const JournalPage page{std::string(length, 'x'), 1.5};
    const auto [pages, health, wholePages] = Decode(Encoded({page, page}));
    EXPECT_EQ(health, store::JournalHealth::Sound);
    EXPECT_EQ(std::tuple(pages.at(1).Body, pages[1].PageDate), std::tuple(page.Body, 1.5));
  }
}

TEST_F(JournalTest, BelievesNoCountOrLengthBeyondTheBytes) {
  const std::pair<std::string, const char*> outlines[] = {
      {threePages, "sound 3/3"},
      {threePages + "x", "damaged 3/3"},
      {With(threePages, countPlace, 1), "damaged 2/2"},
      {With(threePages, countPlace, 1'000'000), "damaged 1000001/3"},
      {With(threePages, countPlace, 1'000'001), "damaged 3/3"},
      {With(threePages, countPlace, 0xFFFFFFFF), "damaged 3/3"},
      {With(threePages.substr(0, headerSize + 12), countPlace, 0), "damaged 2/1"},
      {With(threePages, headerSize + 12, 0xFFFFFFFF), "damaged 3/1"},
      {threePages.substr(0, headerSize - 1), "damaged 2/0"},
      {"ZAND", "damaged 2/0"},
      {std::string(1000, 'x'), "alien 0/0"}};
  for (const auto& [bytes, outline] : outlines) EXPECT_EQ(Outline(bytes), outline);
}

TEST_F(JournalTest, KeepsADamagedFileBesideBeforeTheFirstWriteAndAnAlienOneForGood) {
  const std::string damaged = threePages.substr(0, headerSize + 16);
  Open(Decode(damaged).pages);
  EXPECT_EQ(folder.Names(), fixture::Texts{fileName});
  for (int round = 0; round < 2; ++round) SaveJournalFile(fileName);
  EXPECT_EQ(folder.Read(fileName + ".damaged"), damaged);
  EXPECT_EQ(folder.Names().size(), 2u);
  EXPECT_EQ(Outline(folder.Read(fileName)), "sound 3/3");
  for (const std::string& alien : {std::string("no journal"), std::string(2000, 'x')}) {
    Decode(alien);
    Open({{}, {}});
    ExpectRefused(FailureKind::PermissionDenied);
  }
}

TEST_F(JournalTest, KeepsWhatAnotherProgramPutThereAndTellsItsPages) {
  Open(Decode(Encoded({{"ab", 1.5}, {"ab", 1.5}})).pages);
  folder.Write(fileName, threePages);
  for (int round = 0; round < 2; ++round) SaveJournalFile(fileName);
  EXPECT_EQ(folder.Read(fileName + ".1.other"), threePages);
  EXPECT_EQ(Outline(folder.Read(fileName)), "sound 2/2");
  ASSERT_EQ(answers.messages.size(), 1u);
  EXPECT_NE(answers.last().find("2 pages, 1 more than the open journal"), std::string::npos)
      << answers.last();
  Decode(threePages.substr(0, headerSize + 16));
  folder.Write(fileName, threePages);
  SaveJournalFile(fileName);
  EXPECT_EQ(folder.Names(), (fixture::Texts{fileName, fileName + ".1.other"}))
      << "the damaged one is gone, and the other is kept already";
  Decode("no journal at first");
  folder.Write(fileName, "nor what took its place");
  ExpectRefused(FailureKind::PermissionDenied);
}

TEST_F(JournalTest, SavesPagesOnlyToTheirOwnJournal) {
  Open({{}, {"mine", 0}});
  ExpectRefused(FailureKind::SubscriptOutOfRange, "j00001.tqf");
  for (const auto& [journal, count] : {std::pair{0, 1}, {-1, 1}, {2, 1}, {1, -1}, {1, 0}, {1, 2}}) {
    Staged().PagesJournal = journal;
    PageCount = count;
    ExpectRefused(FailureKind::SubscriptOutOfRange);
  }
}

TEST_F(JournalTest, APasswordFillsItsBlockOrFails) {
  Open({{}, {}});
  MasterPassword = ScrambleText(std::string(128, 'p'));
  EXPECT_EQ(UnscrambleText(UnscrambleText(SavedBlock())), std::string(128, 'p'));
  MasterPassword = ScrambleText(std::string(129, 'p'));
  ExpectRefused(FailureKind::InvalidArgument);
  MasterPassword.clear();
  EXPECT_EQ(SavedBlock(), std::string(512, ' '));
  EXPECT_EQ(answers.last(), "password is null on save!");
}

}  // namespace
