#include "output/CopyFile.h"
#include "output/HtmlSections.h"
#include "output/ReplaceText.h"
#include "output/WebText.h"
#include "platform/desktop/WayOut.h"
#include "platform/files/OutputFile.h"
#include "tests/support/Fixtures.h"

namespace {

class Sections : public fixture::Desk {
 protected:
  Sections() {
    Journals.resize(2);
    Journals[1].FileName = "j00000.tqf";
    Staged().CurrentJournal = 1;
  }

  // The lines of a menu bar, each with "|" behind it; "Next>4" for a link, "4" for one that is its own
  // number.
  std::string Bar(std::int32_t number, std::int32_t pageCount) {
    ExportSettings settings;
    settings.pageCount = pageCount;
    platform::DeleteFile(folder.PathOf("page.html"));
    WriteHtmlMenuBar(number, folder.PathOf("page.html"), settings);
    auto bar = QString::fromStdString(folder.Read("page.html"));
    bar.replace(u"\r\n"_qs, u"|"_qs);
    bar.replace(QRegularExpression(u"<a href=page(\\d+).html>\\1</a>"_qs), u"\\1"_qs);
    bar.replace(QRegularExpression(u"<a href=(?:page)?(\\w+).html>([^<]+)</a>"_qs), u"\\2>\\1"_qs);
    return bar.toStdString();
  }
  // One more picture of page 0 of the open journal.
  PagePicture& AddPicture(const std::string& name) {
    PictureCount = static_cast<std::int32_t>(Pictures.size());
    PagePicture& picture = Pictures.emplace_back();
    picture.PictureFile = folder.PathOf(name);
    picture.PictureWidth = 300 + PictureCount;
    picture.PictureHeight = -1;
    picture.JournalFile = "j00000.tqf";
    return picture;
  }
};

TEST_F(Sections, MenuBarShowsTheNumbersAroundThePage) {
  const std::string home = "<CENTER>|[Home>index] |", done = "</CENTER><BR>|";
  const std::string high = "...|20|21|22|23|24|25|26|27|";
  EXPECT_EQ(Bar(0, 0), "");
  EXPECT_EQ(Bar(2, 3), home + "[Previous>1] |1| 2 |3| [Next>3]| [Last>3]|" + done);
  EXPECT_EQ(Bar(2, 2), home + "[Previous>1] |1| 2 |" + done);
  EXPECT_EQ(Bar(7, 30),
            home + "[Previous>6] |...|2|3|4|5|6| 7 |8|9|10|11|12|...| [Next>8]| [Last>30]|" + done);
  EXPECT_EQ(Bar(28, 30), home + "[Previous>27] |" + high + " 28 |29|30| [Next>29]| [Last>30]|" + done);
  EXPECT_EQ(Bar(6, 11), home + "[Previous>5] |1|2|3|4|5| 6 |7|8|9|10|11| [Next>7]| [Last>11]|" + done);
}

TEST_F(Sections, PicturesOfThisPageAloneAreCopiedAndShown) {
  const std::string cafe = "Caf\xC3\xA9 \xD0\x96.gif", target = folder.PathOf("out");
  platform::MakeFolder(target);
  for (const std::string& name : {std::string("a.gif"), cafe, std::string("x\\b.gif"), std::string("x\\..")})
    folder.Write(name, name);
  AddPicture("a.gif");  // row 0, never shown
  AddPicture("gone.gif");
  AddPicture("a.gif").PageNumber = 1;
  AddPicture("a.gif").JournalFile = "J00000.tqf";
  AddPicture("a.gif").Deleted = True;
  AddPicture("x\\..");
  AddPicture(cafe);
  AddPicture("a.gif").Deleted = 1;  // which removes nothing
  AddPicture("x\\b.gif");
  WriteHtmlPictures({1, 2, 3, 4, 5, 6, 7, 8}, target, folder.PathOf("page.html"));
  EXPECT_EQ(
      folder.Read("page.html"),
      "<a href=\"Caf\xE9 &#1046;.gif\"><img src=\"Caf\xE9 &#1046;.gif\"  align=left width=306 height=-1 "
      "border=0></a>\r\n"
      "<a href=\"a.gif\"><img src=\"a.gif\"  width=307 height=-1 border=0></a>\r\n"
      "<a href=\"b.gif\"><img src=\"b.gif\"  width=308 height=-1 border=0></a>\r\n");
  EXPECT_EQ(folder.Names("out"), (fixture::Texts{cafe, "a.gif", "b.gif"}));
  EXPECT_TRUE(answers.messages.empty());
}

// Of which no block is like another.
std::string Bytes(std::size_t size) {
  std::string bytes(size, '\0');
  for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<char>(i * 7 / 4096 + i);
  return bytes;
}

TEST_F(Sections, CopyFileWritesOverTheStartOfItsTarget) {
  for (const std::size_t size : {0U, 4096U, 4097U, 12288U}) {
    folder.Write("source", Bytes(size));
    folder.Write("target", std::string(5000, '-'));
    EXPECT_TRUE(CopyFile(folder.PathOf("source"), folder.PathOf("target")));
    EXPECT_EQ(folder.Read("target"), Bytes(size) + std::string(size < 5000 ? 5000 - size : 0, '-')) << size;
    EXPECT_TRUE(CopyFile(folder.PathOf("source"), folder.PathOf("source")));
    EXPECT_EQ(folder.Read("source"), Bytes(size)) << "a picture may lie in the export folder already";
  }
}

TEST_F(Sections, CopyFileAsksUntilTheCauseIsGoneOrSomebodyWantsToLeave) {
  const std::string target = folder.PathOf("target"), bytes = Bytes(10000);
  folder.Write("source", bytes);
  std::signal(SIGTERM, SIG_DFL);
  platform::ListenForTheWayOut([] {});
  for (const bool isWayOut : {false, true}) {
    std::optional<fixture::SmallDisk> disk(5000);  // the second block gets in by a part
    fixture::Texts asked;
    platform::SetMessageAnswerer([&](const platform::Message& message) {
      asked.push_back(message.title + ": " + message.text);
      if (asked.size() < 3) return platform::Answer::Ok;
      isWayOut ? static_cast<void>(std::raise(SIGTERM)) : disk.reset();
      EXPECT_TRUE(QTest::qWaitFor([&] { return platform::IsLeavingWanted() == isWayOut; }));
      return platform::Answer::Ok;
    });
    if (isWayOut)
      EXPECT_THROW(CopyFile(folder.PathOf("source"), target), platform::Failure);
    else
      EXPECT_TRUE(CopyFile(folder.PathOf("source"), target) && folder.Read("target") == bytes);
    EXPECT_EQ(asked, fixture::Texts(3, "CopyFile: Error: 61. The disk is full: " + target));
  }
  platform::ListenForTheWayOut({});
}

TEST(ReplaceText, EmptiesWhatIsTheSearchTextAndSearchesReplacementsToo) {
  const struct {
    const char *text, *search, *replacement, *result;
  } cases[] = {
      {"\r\n", "\r\n", "<BR>", ""},  // also on a page, where nobody would expect it
      {"\r\n\r\na\r\r\n\n", "\r\n", "<BR>", "<BR><BR>a\r<BR>\n"},
      {"abcc", "abc", "ab", ""},  // the replacement makes the search text
      {"xaabbx", "ab", "", "xx"},
      {"ABC", "abc", "x", "x"},  // compared in capitals, but emptied only as it stands
      {"\xE9\xFF\x9A-\xDF\xF7", "\xC9\x9F\x8A", "x", "x-\xDF\xF7"},
      {"none", "abc", "abc", "none"},
      {"", "", "a", ""},
  };
  for (const auto& given : cases)
    EXPECT_EQ(ReplaceText(given.text, given.search, given.replacement), given.result) << given.text;
  for (const char* search : {"a", ""})
    fixture::ExpectFailure(platform::FailureKind::InvalidArgument, "",
                           [&] { ReplaceText("bab", search, "xAx"); });
}

TEST(WebText, ForeignCharactersGoOutAsReferences) {
  EXPECT_EQ(WebText(u"<&> \u20AC\u00E9\u0416\U0001F600"), "<&> \x80\xE9&#1046;&#128512;");
  EXPECT_EQ(WebText({u"\xD83Dx\xDE00", 3}), "&#65533;x&#65533;");
}

}  // namespace
