#include <cstring>

#include "store/JournalFile.h"
#include "store/PageCipher.h"
#include "store/Scrambler.h"
#include "tests/store/StoreTest.h"

namespace {

using platform::FailureKind;
using store::JournalHealth;

const std::string journalMagic = "ZANDOLK JOURNAL FILE V00001";
const std::string dateOneAndAHalf = Raw(0x3FF8000000000000, 8);  // 1.5, noon of 31 December 1899
const std::string fileName = "j00000.tqf";

std::string Header(std::uint32_t count) {
  return journalMagic + std::string(512, '\xFE') + Raw(count, 4);
}
std::string Page(const std::string& body) {
  return Counted(body) + dateOneAndAHalf;
}

store::DecodedJournal Decode(const std::string& bytes) {
  std::size_t at = 0;
  const auto source = [&](char* buffer, std::size_t size) {
    const std::size_t given = std::min(size, bytes.size() - at);
    std::memcpy(buffer, bytes.data() + at, given);
    at += given;
    return given;
  };
  return store::DecodeJournal(source, bytes.size());
}
// "rows/whole pages", with a mark for the health.
std::string Outline(const std::string& bytes) {
  const store::DecodedJournal journal = Decode(bytes);
  const char* marks[] = {"sound", "damaged", "alien"};
  return marks[static_cast<int>(journal.health)] + std::string(" ") + std::to_string(journal.pages.size()) +
         "/" + std::to_string(journal.wholePages);
}

class JournalTest : public StoreTest {
 protected:
  // Row 1 of the bookcase with its journal open on these bodies.
  void Open(const std::vector<std::string>& bodies) {
    MasterPassword = "?e";
    Journals.assign(2, {});
    JournalCount = PagesJournal = CurrentJournal = 1;
    Journals[1].FileName = fileName;
    Pages.clear();
    for (const std::string& body : bodies) Pages.push_back({body, 1.5});
    PageCount = static_cast<std::int32_t>(bodies.size()) - 1;
  }
  void OpenFile() {
    Open({""});
    Pages = store::ReadJournalFile(fileName).pages;
    PageCount = static_cast<std::int32_t>(Pages.size()) - 1;
  }
  void ExpectRefused(FailureKind kind, const std::string& name = fileName) {
    const auto before = folder.Names();
    ExpectFailure(kind, [&] { SaveJournalFile(name); });
    EXPECT_EQ(folder.Names(), before);
  }
};

}  // namespace

TEST_F(JournalTest, WritesEachFieldToItsPlace) {
  Open({"", "body", std::string(65534, 'x'), std::string(65535, 'y')});
  SaveJournalFile(fileName);
  std::string bytes = folder.Read(fileName);
  EXPECT_EQ(bytes.substr(27, 512).substr(4), std::string(508, ' '));
  EXPECT_EQ(UnscrambleText(UnscrambleText(bytes.substr(27, 4))), "a");
  bytes.replace(27, 512, 512, '\xFE');
  EXPECT_EQ(bytes, Header(3) + Page("") + Page("body") + Page(std::string(65534, 'x')) + Raw(0xFFFF, 2) +
                       Raw(65535, 4) + std::string(65535, 'y') + dateOneAndAHalf);
  EXPECT_TRUE(answers.messages.empty());
}

TEST_F(JournalTest, ReadsWhatWasWrittenByHand) {
  const std::string longBody(300'000, 'z');
  const auto journal = Decode(Header(2) + Page("") + Raw(0xFFFF, 2) + Raw(longBody.size(), 4) + longBody +
                              Raw(0, 8) + Raw(0xFFFF, 2) + Raw(3, 4) + "abc" + dateOneAndAHalf);
  ASSERT_EQ(journal.health, JournalHealth::Sound);
  ASSERT_EQ(journal.pages.size(), 3u);
  EXPECT_EQ(journal.pages[0].PageDate, 1.5);
  EXPECT_EQ(journal.pages[1].Body, longBody);
  EXPECT_EQ(journal.pages[2].Body, "abc");
}

TEST_F(JournalTest, TheSamplesComeBackByteForByte) {
  struct {
    const char* path;
    std::int32_t shift, page;
    const char* text;
    double date;
  } const samples[] = {{"1-first-diary/j00000.tqf", 55, 1, " day, in ", 38047.878472},
                       {"2-three-journals/j00000.tqf", 65, 77, "lazy dog", 37550.611806},
                       {"2-three-journals/j00002.tqf", 65, 1, "only page", 40303.84375}};
  for (const auto& sample : samples) {
    std::string bytes = Sample(sample.path);
    folder.Write(fileName, bytes);
    OpenFile();
    std::string plain(Pages.at(sample.page).Body.size() / 2, '\0');
    store::Decipher(Pages[sample.page].Body, sample.shift, plain.data());
    EXPECT_EQ(plain.substr(0, 5), "{\\rtf");
    EXPECT_NE(plain.find(sample.text), std::string::npos) << plain;
    EXPECT_NEAR(Pages[sample.page].PageDate, sample.date, 1e-5);
    SaveJournalFile(fileName);
    std::string saved = folder.Read(fileName);
    EXPECT_EQ(saved.erase(27, 512), bytes.erase(27, 512));
  }
}

TEST_F(JournalTest, EveryTruncationGivesTheWholePages) {
  const std::string whole = Sample("1-first-diary/j00000.tqf");
  std::vector<std::size_t> ends;  // of the four pages
  for (const JournalPage& page : Decode(whole).pages) {
    ends.push_back((ends.empty() ? 543 : ends.back()) + 2 + page.Body.size() + 8);
  }
  ASSERT_EQ(ends.back(), whole.size());
  EXPECT_EQ(Outline(whole), "sound 4/4");
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const auto pages = std::count_if(ends.begin(), ends.end(), [&](std::size_t at) { return at <= size; });
    const std::string rows = size < 543 ? "2" : "4";
    const std::string expected = size < 27 ? "alien 0/0" : "damaged " + rows + "/" + std::to_string(pages);
    EXPECT_EQ(Outline(whole.substr(0, size)), expected) << size;
  }
}

TEST_F(JournalTest, BelievesNoCountOrLengthBeyondTheBytes) {
  const std::string pages = Repeated(3, Page("ab"));
  EXPECT_EQ(Outline(Header(2) + pages), "sound 3/3");
  EXPECT_EQ(Outline(Header(1) + pages), "damaged 2/2");
  EXPECT_EQ(Outline(Header(9) + pages), "damaged 10/3");
  EXPECT_EQ(Outline(Header(1'000'000) + pages), "damaged 1000001/3");
  EXPECT_EQ(Outline(Header(1'000'001) + pages), "damaged 3/3");
  EXPECT_EQ(Outline(Header(0x7FFFFFFF) + pages), "damaged 3/3");
  EXPECT_EQ(Outline(Header(0x7FFFFFFF)), "damaged 2/0");
  EXPECT_EQ(Outline(Header(-1) + pages), "damaged 3/3");
  EXPECT_EQ(Outline(Header(0x80000000u) + pages + "x"), "damaged 3/3");
  EXPECT_EQ(Outline(Header(0) + Page("ab")), "damaged 2/1");
  EXPECT_EQ(Outline(Header(2) + pages + "x"), "damaged 3/3");
  EXPECT_EQ(Outline(Header(1) + Page("") + Raw(0xFFFF, 2) + Raw(0xFFFFFFFF, 4) + pages), "damaged 2/1");
  EXPECT_EQ(Outline(std::string(1000, 'x')), "alien 0/0");
  EXPECT_EQ(store::DecodeJournal([](char*, std::size_t) { return std::size_t{0}; }, 1000).health,
            JournalHealth::Alien);
}

TEST_F(JournalTest, KeepsADamagedFileBesideBeforeTheFirstWrite) {
  const std::string damaged = Header(2) + Page("ab") + Page("cut").substr(0, 4);
  folder.Write(fileName, damaged);
  OpenFile();
  EXPECT_EQ(folder.Names(), std::vector<std::string>{fileName});
  SaveJournalFile(fileName);
  SaveJournalFile(fileName);
  EXPECT_EQ(folder.Read(fileName + ".damaged"), damaged);
  EXPECT_EQ(folder.Names().size(), 2u);
  EXPECT_EQ(Outline(folder.Read(fileName)), "sound 3/3");
}

TEST_F(JournalTest, NeverWritesOverAnAlienFile) {
  for (const std::string& alien : {std::string("no journal"), std::string(2000, 'x'), std::string()}) {
    folder.Write(fileName, alien);
    Open({"", ""});
    EXPECT_EQ(store::ReadJournalFile(fileName).health, JournalHealth::Alien);
    ExpectRefused(FailureKind::PermissionDenied);
    EXPECT_EQ(folder.Read(fileName), alien);
  }
}

TEST_F(JournalTest, SavesPagesOnlyToTheirOwnJournal) {
  Open({"", "mine"});
  ExpectRefused(FailureKind::SubscriptOutOfRange, "j00001.tqf");
  for (const std::int32_t journal : {0, -1, 2}) {
    PagesJournal = journal;
    ExpectRefused(FailureKind::SubscriptOutOfRange);
  }
  PagesJournal = 1;
  for (const std::int32_t count : {-1, 0, 2}) {
    PageCount = count;
    ExpectRefused(FailureKind::SubscriptOutOfRange);
  }
  ForgetPages();
  ExpectRefused(FailureKind::SubscriptOutOfRange);
}

TEST_F(JournalTest, APasswordFillsItsBlockOrFails) {
  Open({"", ""});
  SaveJournalFile(fileName);
  MasterPassword = ScrambleText(std::string(128, 'p'));
  SaveJournalFile(fileName);
  const std::string block = folder.Read(fileName).substr(27, 512);
  EXPECT_EQ(UnscrambleText(UnscrambleText(block)), std::string(128, 'p'));
  MasterPassword = ScrambleText(std::string(129, 'p'));
  ExpectRefused(FailureKind::InvalidArgument);
  EXPECT_EQ(folder.Read(fileName).substr(27, 512), block);
  MasterPassword.clear();
  SaveJournalFile(fileName);
  EXPECT_EQ(answers.last(), "password is null on save!");
  EXPECT_EQ(folder.Read(fileName).substr(27, 512), std::string(512, ' '));
}

TEST_F(JournalTest, AFileThatCannotBeWrittenIsAFailure) {
  Open({"", ""});
  QDir().mkdir(QString::fromStdString(folder.PathOf(fileName)));
  EXPECT_THROW(SaveJournalFile(fileName), platform::Failure);
  EXPECT_THROW(store::ReadJournalFile(fileName), platform::Failure);
  platform::SetProgramFolder(folder.PathOf("missing"));
  EXPECT_THROW(SaveJournalFile(fileName), platform::Failure);
  EXPECT_THROW(store::ReadJournalFile(fileName), platform::Failure);
}

TEST_F(JournalTest, PeeksThePageCount) {
  std::string name = "stray.tqf";
  EXPECT_EQ(PeekJournalPageCount(name), 0);
  folder.Write(name, Header(12).substr(0, 543));
  EXPECT_EQ(PeekJournalPageCount(name), 12);
  EXPECT_EQ(PageCount, 12);
  for (const std::string& bytes : {Header(12).substr(0, 542), std::string(600, 'x'), Header(-3)}) {
    folder.Write(name, bytes);
    EXPECT_EQ(PeekJournalPageCount(name), 0);
  }
  EXPECT_TRUE(answers.messages.empty());
  std::string blank;
  EXPECT_EQ(PeekJournalPageCount(blank), 0);
  EXPECT_EQ(blank, "journal.journalfile");
  EXPECT_EQ(answers.last(), "error: filename blank?");
}
