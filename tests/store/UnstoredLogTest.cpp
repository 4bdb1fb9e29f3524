#include "store/Bytes.h"
#include "store/UnstoredLog.h"
#include "tests/store/StoreTest.h"

using store::LogHealth;
using store::UnstoredLog;
using store::UnstoredPage;

namespace {

constexpr std::size_t magicSize = 34, headSize = 16;

UnstoredPage Page(std::int32_t row) {
  return {row, false, store::CheckOf("before"), 1.5, 2.5, "body"};
}
// All kinds of parts, two journals and two pages in each.
UnstoredLog Full() {
  return {45000.5,
          {{store::CheckOf("old"), "index"}},
          {{{}, "pictures"}},
          {{"a.tqf", {Page(0), Page(7)}}, {"b.tqf", {Page(1), Page(2)}}}};
}
std::string Section(const std::string& tag, const std::string& payload) {
  std::string head = tag;
  store::AppendNumber(head, static_cast<std::uint32_t>(payload.size()));
  store::AppendNumber(head, store::Crc32(payload));
  store::AppendNumber(head, store::Crc32(head));
  return head + payload;
}
// "sound index pictures a.tqf:0,7, b.tqf:1,2, ": what was read.
std::string Outline(const std::string& bytes) {
  const auto [log, health, problem] = store::DecodeLog(bytes);
  EXPECT_EQ(health == LogHealth::Sound, problem.empty());
  std::string outline = problem.empty() ? "sound " : "(" + problem + ") ";
  if (log.index) outline += "index ";
  if (log.pictures) outline += "pictures ";
  for (const auto& [fileName, pages] : log.journals) {
    outline += fileName + ":";
    for (const UnstoredPage& page : pages) outline += std::to_string(page.row) + ",";
    outline += " ";
  }
  return outline;
}

TEST(FileCheckTest, IsTheCheckOfZipWhateverTheLength) {
  EXPECT_EQ(store::CheckOf(""), (store::FileCheck{0, 0}));
  EXPECT_EQ(store::CheckOf("123456789"), (store::FileCheck{9, 0xCBF43926}));
  EXPECT_EQ(store::CheckOf(std::string(32, '\xFF')), (store::FileCheck{32, 0xFF6CAB0B}));
  EXPECT_NE(store::CheckOf("0"), store::CheckOf(std::string("0\0", 2)));
}

TEST(UnstoredLogTest, EachFieldHasItsPlace) {
  const std::string bytes = Sample("6-killed-program/journal.tql");
  const std::string journal = Sample("6-killed-program/j00000.tqf");
  const std::string index = Sample("6-killed-program/journal.tqt");
  const auto [log, health, problem] = store::DecodeLog(bytes);
  EXPECT_EQ(health, LogHealth::Sound) << problem;
  EXPECT_EQ(log.when, 38083.75);
  ASSERT_TRUE(log.index);
  EXPECT_EQ(log.index->began, store::CheckOf(index));
  EXPECT_EQ(log.index->bytes, With(index, index.size() - 4, 0xC0FFFF));
  EXPECT_FALSE(log.pictures);
  ASSERT_EQ(log.journals.size(), 1u);
  const auto& [fileName, pages] = log.journals[0];
  EXPECT_EQ(fileName, "j00000.tqf");
  ASSERT_EQ(pages.size(), 3u);
  EXPECT_EQ(pages[0], (UnstoredPage{2, false, store::CheckOf(journal.substr(2331, 868)), 38079.84375, 38081.5,
                                    pages[0].Body}));
  EXPECT_EQ(Deciphered(pages[0].Body.value(), 55), "{\\rtf1 Changed}");
  EXPECT_EQ(pages[1], (UnstoredPage{3, false, {}, 38080.84375, 38082.5, {}}));
  EXPECT_EQ(pages[2], (UnstoredPage{4, true, {}, 0, 38083.5, pages[2].Body}));
  EXPECT_EQ(store::EncodeLog(log), bytes);
}

TEST(UnstoredLogTest, HoldsAllKindsOfPartsOrNone) {
  UnstoredLog log = Full();
  EXPECT_EQ(store::DecodeLog(store::EncodeLog(log)).log, log);
  log.journals[0].pages[0].Body = std::string(70'000, '\xFF');
  log.journals[1].pages[1].Body = "";  // no text is not the same as no change
  log.journals[1].pages[1].orBegan = {{{7, 8}, 9.5}, {{}, 1}};
  EXPECT_EQ(store::DecodeLog(store::EncodeLog(log)).log, log);
  EXPECT_FALSE(log.empty());
  EXPECT_TRUE((UnstoredLog{1, {}, {}, {{"a.tqf", {}}}}.empty()));
  EXPECT_EQ(Outline(store::EncodeLog({})), "sound ");
  log.journals[0].FileName = std::string(65536, 'a');
  fixture::ExpectFailure(platform::FailureKind::InvalidArgument, "too long", [&] { store::EncodeLog(log); });
}

TEST(UnstoredLogTest, AChangedByteCostsItsOwnPartAloneAndIsTold) {
  const std::string whole = "index pictures a.tqf:0,7, b.tqf:1,2, ", bytes = store::EncodeLog(Full());
  const std::vector<std::string> withoutOne = {"pictures a.tqf:0,7, b.tqf:1,2, ",
                                               "index a.tqf:0,7, b.tqf:1,2, ",
                                               "index pictures a.tqf:7, b.tqf:1,2, ",
                                               "index pictures a.tqf:0, b.tqf:1,2, ",
                                               "index pictures a.tqf:0,7, b.tqf:2, ",
                                               "index pictures a.tqf:0,7, b.tqf:1, ",
                                               whole};
  std::size_t start = magicSize;
  for (const std::string& expected : withoutOne) {
    const std::size_t end = start + headSize + store::LoadNumber<std::uint32_t>(&bytes[start + 4]);
    for (std::size_t place = start; place < end; ++place) {
      std::string changed = bytes;
      changed[place] = static_cast<char>(changed[place] ^ 0x10);
      const std::string outline = Outline(changed);
      EXPECT_EQ(outline.substr(outline.find(')') + 2), expected) << place;
      EXPECT_EQ(outline[0], '(') << place;
    }
    start = end;
  }
  EXPECT_EQ(start, bytes.size());
  EXPECT_EQ(Outline(bytes), "sound " + whole);
  EXPECT_EQ(Outline(bytes + "x"), "(bytes behind the end) " + whole);
}

TEST(UnstoredLogTest, NoCutIsTakenForAWholeLog) {
  const std::string bytes = store::EncodeLog(Full());
  for (std::size_t size = 0; size < bytes.size(); ++size) {
    const store::DecodedLog decoded = store::DecodeLog(bytes.substr(0, size));
    EXPECT_EQ(decoded.health, size < magicSize ? LogHealth::Alien : LogHealth::Damaged) << size;
  }
  EXPECT_EQ(Outline(bytes.substr(0, bytes.size() - 1)), "(a part) index pictures a.tqf:0,7, b.tqf:1,2, ");
  EXPECT_EQ(store::DecodeLog(With(bytes, 30, 0x32303030)).health, LogHealth::Alien) << "a later kind";
}

TEST(UnstoredLogTest, LeavesOutWhatCannotBeAndPassesOverWhatALaterVersionAdds) {
  const auto page = [](const std::string& fileName, std::int32_t row) {
    return store::EncodeLog({0, {}, {}, {{fileName, {Page(row)}}}}).substr(magicSize);
  };
  const std::string begin = store::EncodeLog({}).substr(0, magicSize),
                    end = store::EncodeLog({}).substr(magicSize);
  const auto parts = [&](const std::string& part) {  // between two sound pages
    const std::string before = page("a.tqf", 1), after = page("a.tqf", 2);
    return begin + before.substr(0, before.size() - end.size()) + part + after;
  };
  const auto alone = [&](const std::string& part) { return part.substr(0, part.size() - end.size()); };
  EXPECT_EQ(Outline(parts(Section("NEXT", "what nobody knows yet"))), "sound a.tqf:1,2, ");
  for (const char* name : {"../a", "journal.tql", "journal.tqt", ".."})
    EXPECT_EQ(Outline(parts(alone(page(name, 3)))), "(file name of a page) a.tqf:1,2, ") << name;
  EXPECT_EQ(Outline(parts(alone(page("a.tqf", -1)))), "(row of a page) a.tqf:1,2, ");
  EXPECT_EQ(Outline(parts(Section("PAGE", std::string("\xFF\xFF"
                                                      "a",
                                                      3)))),
            "(file name of a page) a.tqf:1,2, ");
  EXPECT_EQ(Outline(parts(Section("INDX", ""))), "(whether there was a file of the bookcase) a.tqf:1,2, ");
  UnstoredLog twice = {0, {}, {}, {{"a.tqf", {Page(1), Page(1)}}}};
  twice.journals[0].pages[1].Body = "later";
  EXPECT_EQ(store::DecodeLog(store::EncodeLog(twice)).log.journals.at(0).pages,
            std::vector{twice.journals[0].pages[1]});
}

TEST(UnstoredLogTest, TakesTimeByItsLength) {
  UnstoredLog many;
  for (std::int32_t i = 0; i < 20'000; ++i)
    many.journals.push_back({std::to_string(i + 100'000) + ".tqf", {Page(i)}});
  for (std::int32_t i = 0; i < 20'000; ++i) many.journals[0].pages.push_back(Page(i + 1));
  const std::string bytes = store::EncodeLog(many),
                    noise = bytes.substr(0, magicSize) + std::string(500'000, 'P');
  EXPECT_EQ(store::DecodeLog(bytes).log, many);
  EXPECT_EQ(Outline(noise), "(the beginning of a part) ");
}

}  // namespace
