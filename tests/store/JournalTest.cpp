#include "store/JournalFile.h"
#include "store/PageCipher.h"
#include "store/Scrambler.h"
#include "tests/store/StoreTest.h"

namespace {

using platform::FailureKind;

const std::string journalMagic = "ZANDOLK JOURNAL FILE V00001";
const std::string dateOneAndAHalf = Raw(0x3FF8000000000000, 8);  // 1.5, noon of 31 December 1899
const std::string fileName = "j00000.tqf";

std::string Header(std::int32_t count) {
  return journalMagic + std::string(512, '\xFE') + Raw(count, 4);
}
std::string Page(const std::string& body) {
  return Counted(body) + dateOneAndAHalf;
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
  const char* healths[] = {"sound", "damaged", "alien"};
  return healths[static_cast<int>(journal.health)] + std::string(" ") + std::to_string(journal.pages.size()) +
         "/" + std::to_string(journal.wholePages);
}

class JournalTest : public fixture::Desk {
 protected:
  // Row 1 of the bookcase with its journal open on these pages.
  void Open(std::vector<JournalPage> pages) {
    MasterPassword = "?e";
    Journals.assign(2, {});
    JournalCount = PagesJournal = CurrentJournal = 1;
    Journals[1].FileName = fileName;
    Pages = std::move(pages);
    PageCount = static_cast<std::int32_t>(Pages.size()) - 1;
  }
  void OpenFile(const std::string& bytes) {
    folder.Write(fileName, bytes);
    Open(store::ReadJournalFile(fileName).pages);
  }
  void ExpectRefused(FailureKind kind, const std::string& name = fileName) {
    const auto before = folder.Names();
    const std::string bytes = folder.Read(fileName);
    fixture::ExpectFailure(kind, "", [&] { SaveJournalFile(name); });
    // cppcheck-suppress knownConditionTrueFalse  ; the names are read from the disk once more
    EXPECT_EQ(folder.Names(), before);
    EXPECT_EQ(folder.Read(fileName), bytes);
  }
};

}  // namespace

TEST_F(JournalTest, WritesAndReadsEachFieldAtItsPlace) {
  const std::string longest(65534, 'x'), longer(65535, 'y'), longPage(300'000, 'z');
  Open({{"", 1.5}, {"body", 1.5}, {longest, 1.5}, {longer, 1.5}, {longPage, 1.5}});
  SaveJournalFile(fileName);
  std::string bytes = folder.Read(fileName);
  EXPECT_EQ(bytes.substr(27, 512).substr(4), std::string(508, ' '));
  EXPECT_EQ(UnscrambleText(UnscrambleText(bytes.substr(27, 4))), "a");
  bytes.replace(27, 512, 512, '\xFE');
  EXPECT_EQ(bytes, Header(4) + Page("") + Page("body") + Page(longest) + Raw(0xFFFF, 2) + Raw(65535, 4) +
                       longer + dateOneAndAHalf + Raw(0xFFFF, 2) + Raw(300'000, 4) + longPage +
                       dateOneAndAHalf);
  const auto journal = Decode(bytes);
  ASSERT_EQ(Outline(bytes), "sound 5/5");
  EXPECT_EQ(journal.pages[1].PageDate, 1.5);
  EXPECT_EQ(journal.pages[4].Body, longPage);
  const auto shortAsLong = Decode(Header(1) + Page("") + Raw(0xFFFF, 2) + Raw(3, 4) + "abc" + Raw(0, 8));
  EXPECT_EQ(shortAsLong.pages.at(1).Body, "abc");
}

TEST_F(JournalTest, TheSamplesComeBackByteForByte) {
  for (const char* path :
       {"1-first-diary/j00000.tqf", "2-three-journals/j00000.tqf", "2-three-journals/j00002.tqf"}) {
    std::string bytes = Sample(path);
    OpenFile(bytes);
    SaveJournalFile(fileName);
    EXPECT_EQ(folder.Read(fileName).erase(27, 512), bytes.erase(27, 512));
    std::string plain(Pages.at(1).Body.size() / 2, '\0');
    store::Decipher(Pages[1].Body, path[0] == '1' ? 55 : 65, plain.data());
    EXPECT_EQ(plain.substr(0, 5), "{\\rtf");
  }
}

TEST_F(JournalTest, EveryTruncationGivesTheWholePages) {
  const std::string whole = Sample("1-first-diary/j00000.tqf");
  std::vector<std::size_t> ends;  // of the four pages
  for (const JournalPage& page : Decode(whole).pages)
    ends.push_back((ends.empty() ? 543 : ends.back()) + 2 + page.Body.size() + 8);
  ASSERT_EQ(ends.back(), whole.size());
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const auto pages = std::count_if(ends.begin(), ends.end(), [&](std::size_t at) { return at <= size; });
    EXPECT_EQ(Outline(whole.substr(0, size)),
              (size < 543 ? "damaged 2/" : "damaged 4/") + std::to_string(pages));
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
      {Header(0x7FFFFFFF) + pages, "damaged 3/3"},
      {Header(0x7FFFFFFF), "damaged 2/0"},
      {Header(-1) + pages, "damaged 3/3"},
      {Header(0) + Page("ab"), "damaged 2/1"},
      {Header(1) + Page("") + Raw(0xFFFF, 2) + Raw(0xFFFFFFFF, 4) + pages, "damaged 2/1"},
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
  SaveJournalFile(fileName);
  const std::string block = folder.Read(fileName).substr(27, 512);
  EXPECT_EQ(UnscrambleText(UnscrambleText(block)), std::string(128, 'p'));
  MasterPassword = ScrambleText(std::string(129, 'p'));
  ExpectRefused(FailureKind::InvalidArgument);
  MasterPassword.clear();
  SaveJournalFile(fileName);
  EXPECT_EQ(answers.last(), "password is null on save!");
  EXPECT_EQ(folder.Read(fileName).substr(27, 512), std::string(512, ' '));
}

TEST_F(JournalTest, PeeksThePageCount) {
  std::string name = "stray.tqf", blank;
  EXPECT_EQ(PeekJournalPageCount(name), 0) << "there is no such file";
  for (const auto& [bytes, count] :
       {std::pair{Header(12), 12}, {Header(12).substr(0, 542), 0}, {Header(-3), 0}}) {
    folder.Write(name, bytes);
    EXPECT_EQ(PeekJournalPageCount(name), count);
    EXPECT_EQ(PageCount, count);
  }
  EXPECT_EQ(PeekJournalPageCount(blank), 0);
  EXPECT_EQ(blank, "journal.journalfile");
  EXPECT_EQ(answers.texts(), fixture::Texts{"error: filename blank?"});
}
