// What a document may cost: time by its length, bytes by its length, and depth nothing at all.
#include "richtext/document/Limits.h"
#include "tests/richtext/RtfDump.h"

using namespace richtext;

namespace {

std::string Repeated(const std::string& part, std::size_t times) {
  std::string all;
  for (std::size_t i = 0; i < times; ++i) all += part;
  return all;
}

// A reader that looks things up in a list, copies as it grows, or recurses does not come to the end of these
// in an hour.
TEST(RtfGrowth, TakesTimeByTheInputsLengthOnly) {
  const std::size_t many = 200'000;
  std::string fonts = "{\\rtf1{\\fonttbl", sizes = "{\\rtf1{\\colortbl;" + Repeated("\\red1;", many) + "}";
  for (std::size_t i = 0; i < many; ++i) {
    const std::string number = std::to_string(i);
    fonts += "{\\f" + number + " F" + number + ";}";
    sizes += "\\fs" + std::to_string(i % 3000 + 1) + "\\li" + number + " x\\par";
  }
  const std::string inputs[] = {
      fonts + "}\\f9 x}",
      sizes,
      "{\\rtf1{\\fonttbl{\\f0 " + Repeated("N", 10 * many) + ";}}\\f0 x",
      "{\\rtf1" + Repeated("{\\pict\\pngblip 00", many),
      "{\\rtf1" + Repeated("\\tx5\\tx99\\par", many / 5),
      "{\\rtf1 " + Repeated("x", 10 * many) + Repeated("{\\do{\\dptxbxtext}}", many),
      "{\\rtf1\\ansicpg932 " + Repeated("\x8C\x01", many),
      Repeated("\x01", 10 * many),
  };
  for (const std::string& input : inputs) {
    const Document document = ReadRtf(input);
    EXPECT_EQ(ReadRtf(WriteRtf(document)), document) << input.substr(0, 30);
  }
}

// What stands before a shape comes behind its text, or ends before it.
TEST(RtfGrowth, LongParagraphsWaitForNoShape) {
  const auto paragraphs = [](const std::string& before) {
    return ReadRtf("{\\rtf1 " + before + R"({\do{\dptxbxtext c}}d})").paragraphs.size();
  };
  EXPECT_EQ(paragraphs(Repeated("x", 2000)), 2u);
  EXPECT_EQ(paragraphs(Repeated("x", 2001)), 3u);
  EXPECT_EQ(paragraphs(Repeated("x{\\b x}", 25)), 2u);
  EXPECT_EQ(paragraphs(Repeated("x{\\b x}", 25) + 'x'), 3u);
}

// What few bytes bring back is written in full: the end of a group, a paragraph of a long link. Each of these
// is the worst of its kind.
TEST(RtfGrowth, StaysWithinABound) {
  const std::string link =
      R"({\field{\*\fldinst HYPERLINK ")" + std::string(MaxLink, 'x') + R"("}{\fldrslt )";
  const std::string signs = Repeated("\\u9999?", 32);
  std::string tabs = "\\rtlpar\\li-30000\\ri-30000\\fi-30000\\sl-30000", leaders = tabs;
  for (int i = 0; i < 40; ++i) {
    tabs += "\\tqdec\\tx" + std::to_string(10'000 + i * 300);
    leaders += "\\tqdec\\tlhyph\\tx" + std::to_string(10'000 + i * 300);
  }
  std::string borders;
  for (const char side : std::string("tlbr"))
    borders += std::string("\\brdr") + side + "\\brdrengrave\\brdrw255\\brsp620";
  std::string different;
  for (int i = 0; i < 6500; ++i)
    different += "\\pard\\box\\brdrs\\brdrw" + std::to_string(i % 255 + 1) + "\\brsp" +
                 std::to_string(i % 600) + " x\\par";
  std::string row = R"({\colortbl;\red1;}\trowd\trgaph30000\trleft-30000\trrh-30000\trhdr\trqc)";
  for (const char side : std::string("tlbrhv"))
    row += std::string("\\trbrdr") + side + "\\brdrengrave\\brdrw255\\brdrcf1";
  for (const char side : std::string("tlbr"))
    row += std::string("\\clbrdr") + side + "\\brdrengrave\\brdrw255\\brdrcf1";
  row += R"(\clmgf\clvmgf\clvertalb\clcbpat1\cellx-29999)";
  const struct {
    std::string rtf;
    std::size_t links;  // bytes that links may cost besides
  } examples[] = {
      {link + Repeated("a\\par ", 3000), MaxLinkText},
      {link + Repeated("{\\b a}b", 3000), 0},
      {R"({\*\pn\pndec{\pntxtb )" + signs + R"(}{\pntxta )" + signs + "}}" +
           Repeated(R"({\pard\par}\par)", 3000),
       0},
      {R"({\*\pn\pndec{\pntxtb )" + signs + R"(}{\pntxta )" + signs + "}}" + Repeated("\\par", 6000), 0},
      {row + Repeated(R"(\cell\row)", 3000), 0},
      {tabs + row + Repeated(R"({\tx1\cell}\cell\row)", 3000), 0},
      {leaders + row + Repeated(R"({\tx1\cell}\cell\row)", 3000), 0},
      {borders + tabs + Repeated("{\\tx1\\par}\\par", 3000), 0},
      {R"({\*\generator LibreOffice/7;}{\stylesheet{\s1)" + borders + tabs + R"(;}{\s2\sbasedon1\qc;}})" +
           Repeated(R"(\s2\par\s1\par)", 3000),
       0},
      {different, 0},
      {R"({\colortbl;\red1;}\b\i\ululdbwave\strike\super\v\caps\fs44\cf1\highlight1 )" +
           Repeated(R"({\plain a}b)", 3000),
       0},
  };
  for (const auto& [rtf, links] : examples) {
    const Document document = ReadRtf("{\\rtf1" + rtf);
    const std::string written = WriteRtf(document);
    EXPECT_LT(written.size(), 80 * rtf.size() + links) << rtf.substr(0, 40);
    EXPECT_TRUE(ReadRtf(written) == document) << rtf.substr(0, 40);
  }
  EXPECT_EQ(ReadRtf("{\\rtf1" + examples[0].rtf).formats[0].link.size(), MaxLink);
}

TEST(RtfGrowth, CountsBracesDeeperThanItKeepsFormats) {
  const std::string open(100'000, '{'), close(100'000, '}');
  ExpectEach({
      {"{\\rtf1 a" + open + "\\b b" + close + "c\\par d}e", "a(b)b()c|d"},
      {"{\\rtf1 a" + open + "{\\*\\zzz x{y}}b" + close + "}c", "ab"},
      {"{\\rtf1 a{\\*\\zzz " + open + close + "}b}c", "ab"},
  });
}

}  // namespace
