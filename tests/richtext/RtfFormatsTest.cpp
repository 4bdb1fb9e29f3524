#include "richtext/document/Limits.h"
#include "richtext/document/ListLabel.h"
#include "richtext/document/PlainText.h"
#include "tests/richtext/RtfDump.h"

using namespace richtext;

namespace {

TEST(RtfFormats, HasNoMoreLinkAndTabsThanAreKept) {
  const std::string link = R"({\rtf1{\field{\*\fldinst HYPERLINK )";
  ExpectReads(link + R"(\\o "tip" \\n "x://y"}{\fldrslt b}}})", "(-> x://y)b()");
  for (const bool isTooLong : {false, true}) {
    const std::string target(MaxLink + isTooLong, 'x');
    ExpectReads(link + target + R"(}{\fldrslt b}}})", isTooLong ? "b" : "(-> " + target + ")b()");
  }
  std::string many = R"({\rtf1\pard)";
  std::string dump = "[";
  for (std::size_t i = 1; i <= MaxTabStops + 2; ++i) {
    many += "\\tx" + std::to_string(i);
    if (i <= MaxTabStops) dump += (i > 1 ? " tab" : "tab") + std::to_string(i);
  }
  ExpectReads(many + " a}", dump + "]a");
}

TEST(RtfFormats, ANotesLabelsAreNoneOfTheParagraphAroundIt) {
  EXPECT_EQ(ReadRtf("{\\rtf1 a{\\footnote{\\listtext\\bullet\\tab}note}}"),
            ReadRtf("{\\rtf1 a{\\footnote note}}"));
}

TEST(RtfFormats, CountsInEveryWay) {
  const std::tuple<ListKind, std::int32_t, std::u16string> labels[] = {
      {ListKind::Decimal, 0, u"(0)"},        {ListKind::LowerLetter, 26, u"(z)"},
      {ListKind::UpperLetter, 27, u"(AA)"},  {ListKind::LowerRoman, 1994, u"(mcmxciv)"},
      {ListKind::UpperRoman, 49, u"(XLIX)"}, {ListKind::UpperRoman, 5000, u"(5000)"},
      {ListKind::LowerLetter, 0, u"(0)"},
  };
  for (const auto& [kind, number, label] : labels)
    EXPECT_EQ(LabelText({kind, 1, 0, u"(", u")"}, number), label);
}

TEST(PlainText, HoldsWhatIsRead) {
  EXPECT_EQ(PlainText(ReadRtf(
                R"({\rtf1 a\line\b b\v c\v0\tab{\pict\pngblip 00}\par{\v\par}{\listtext 1.}\u233?\par})")),
            "a\nb\t\n\n\xC3\xA9");
}

}  // namespace
