#include "store/JournalFile.h"
#include "store/Scrambler.h"
#include "tests/store/StoreTest.h"

namespace {

using platform::FailureKind;

const std::string fileName = "j00000.tqf";
const std::string noon = Raw(0x3FF8000000000000, 8);  // 1.5, noon of 31 December 1899

std::string Header(std::int32_t count) {
  return "ZANDOLK JOURNAL FILE V00001" + std::string(512, '\xFE') + Raw(count, 4);
}
std::string Page(const std::string& body) {
  return Counted(body) + noon;
}
std::string LongPage(const std::string& body) {
  return Raw(0xFFFF, 2) + Raw(std::ssize(body), 4) + body + noon;
}

store::DecodedJournal Decode(const std::string& bytes) {
  std::size_t at = 0;
  const auto source = [&](char* buffer, std::size_t size) {
    const std::size_t given = bytes.copy(buffer, size, at);
    at += given;
    return given;
  };
  return store::DecodeJournal(source, bytes.size());
}
// "health rows/whole pages".
std::string Outline(const std::string& bytes) {
  const store::DecodedJournal journal = Decode(bytes);
  const char* healths[] = {"sound ", "damaged ", "alien "};
  return healths[static_cast<int>(journal.health)] + std::to_string(journal.pages.size()) + "/" +
         std::to_string(journal.wholePages);
}

class JournalTest : public fixture::Desk {
 protected:
  // Row 1 of the bookcase with its journal open on these pages.
  void Open(std::vector<JournalPage> pages) {
    MasterPassword = "?e";
    Journals.assign(2, {});
    Journals[1].FileName = fileName;
    JournalCount = PagesJournal = CurrentJournal = 1;
    Pages = std::move(pages);
    PageCount = static_cast<std::int32_t>(Pages.size()) - 1;
  }
  void OpenFile(const std::string& bytes) {
    folder.Write(fileName, bytes);
    Open(store::ReadJournalFile(fileName).pages);
  }
  // Saves the open journal; its bytes with its password's block in `block`.
  std::string Saved() {
    SaveJournalFile(fileName);
    std::string bytes = folder.Read(fileName);
    block = bytes.substr(27, 512);
    return bytes.replace(27, 512, 512, '\xFE');
  }
  void ExpectRefused(FailureKind kind, const std::string& name = fileName) {
    const std::string bytes = folder.Read(fileName);
    const auto before = folder.Names();
    fixture::ExpectFailure(kind, "", [&] { SaveJournalFile(name); });
    // cppcheck-suppress knownConditionTrueFalse  ; the names are read from the disk once more
    EXPECT_EQ(folder.Names(), before);
    EXPECT_EQ(folder.Read(fileName), bytes);
  }
  std::string block;
};

TEST_F(JournalTest, WritesAndReadsEachFieldAtItsPlace) {
  const std::string longest(65534, 'x'), longer(65535, 'y'), longPage(300'000, 'z');
  Open({{"", 1.5}, {"body", 1.5}, {longest, 1.5}, {longer, 1.5}, {longPage, 1.5}});
  const std::string bytes = Saved();
  EXPECT_EQ(bytes,
            Header(4) + Page("") + Page("body") + Page(longest) + LongPage(longer) + LongPage(longPage));
  EXPECT_EQ(block.substr(4), std::string(508, ' '));
  EXPECT_EQ(UnscrambleText(UnscrambleText(block.substr(0, 4))), "a");
  ASSERT_EQ(Outline(bytes), "sound 5/5");
  EXPECT_EQ(Decode(bytes).pages[1].PageDate, 1.5);
  EXPECT_EQ(Decode(bytes).pages[4].Body, longPage);
  EXPECT_EQ(Decode(Header(1) + Page("") + LongPage("short")).pages.at(1).Body, "short");
}

TEST_F(JournalTest, TheSamplesComeBackByteForByte) {
  for (const auto& [path, shift] : {std::pair{"1-first-diary/j00000.tqf", 55},
                                    {"2-three-journals/j00000.tqf", 65},
                                    {"2-three-journals/j00002.tqf", 65}}) {
    OpenFile(Sample(path));
    EXPECT_EQ(Saved(), Sample(path).replace(27, 512, 512, '\xFE'));
    EXPECT_EQ(Deciphered(Pages.at(1).Body, shift).substr(0, 5), "{\\rtf");
  }
}

TEST_F(JournalTest, BelievesNoCountOrLengthBeyondTheBytes) {
  const std::string pages = Page("ab") + Page("ab") + Page("ab");
  const std::pair<std::string, const char*> outlines[] = {
      {Header(2) + pages, "sound 3/3"},
      {Header(2) + pages + "x", "damaged 3/3"},
      {Header(1) + pages, "damaged 2/2"},
      {Header(9) + pages, "damaged 10/3"},
      {Header(1'000'000) + pages, "damaged 1000001/3"},
      {Header(1'000'001) + pages, "damaged 3/3"},
      {Header(0x7FFFFFFF), "damaged 2/0"},
      {Header(-1) + pages, "damaged 3/3"},
      {Header(0) + Page("ab"), "damaged 2/1"},
      {Header(1) + Page("") + Raw(0xFFFF, 2) + Raw(0xFFFFFFFF, 4) + pages, "damaged 2/1"},
      {Header(2) + pages.substr(1), "damaged 3/0"},
      {(Header(2) + pages).substr(0, 543 + 35), "damaged 3/2"},
      {Header(2).substr(0, 542), "damaged 2/0"},
      {"ZAND", "damaged 2/0"},
      {std::string(1000, 'x'), "alien 0/0"}};
  for (const auto& [bytes, outline] : outlines) EXPECT_EQ(Outline(bytes), outline);
}

TEST_F(JournalTest, KeepsADamagedFileBesideBeforeTheFirstWriteAndAnAlienOneForGood) {
  const std::string damaged = Header(2) + Page("ab") + Page("cut").substr(0, 4);
  OpenFile(damaged);
  EXPECT_EQ(folder.Names(), fixture::Texts{fileName});
  for (int round = 0; round < 2; ++round) SaveJournalFile(fileName);
  EXPECT_EQ(folder.Read(fileName + ".damaged"), damaged);
  EXPECT_EQ(folder.Names().size(), 2u);
  EXPECT_EQ(Outline(folder.Read(fileName)), "sound 3/3");
  for (const std::string& alien : {std::string("no journal"), std::string(2000, 'x')}) {
    OpenFile(alien);
    Open({{}, {}});
    ExpectRefused(FailureKind::PermissionDenied);
  }
}

TEST_F(JournalTest, SavesPagesOnlyToTheirOwnJournal) {
  Open({{}, {"mine", 0}});
  ExpectRefused(FailureKind::SubscriptOutOfRange, "j00001.tqf");
  for (const auto& [journal, count] : {std::pair{0, 1}, {-1, 1}, {2, 1}, {1, -1}, {1, 0}, {1, 2}}) {
    PagesJournal = journal;
    PageCount = count;
    ExpectRefused(FailureKind::SubscriptOutOfRange);
  }
  ForgetPages();
  ExpectRefused(FailureKind::SubscriptOutOfRange);
}

TEST_F(JournalTest, APasswordFillsItsBlockOrFails) {
  Open({{}, {}});
  MasterPassword = ScrambleText(std::string(128, 'p'));
  Saved();
  EXPECT_EQ(UnscrambleText(UnscrambleText(block)), std::string(128, 'p'));
  MasterPassword = ScrambleText(std::string(129, 'p'));
  ExpectRefused(FailureKind::InvalidArgument);
  MasterPassword.clear();
  Saved();
  EXPECT_EQ(answers.last(), "password is null on save!");
  EXPECT_EQ(block, std::string(512, ' '));
}

TEST_F(JournalTest, PeeksThePageCount) {
  std::string name = "stray.tqf", blank;
  folder.Write(name, Header(-3));
  EXPECT_EQ(PeekJournalPageCount(name), 0) << "as before, and not below it";
  EXPECT_EQ(PeekJournalPageCount(blank), 0);
  EXPECT_EQ(blank, "journal.journalfile");
  EXPECT_EQ(answers.texts(), fixture::Texts{"error: filename blank?"});
}

}  // namespace
