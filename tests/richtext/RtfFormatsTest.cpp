#include "richtext/document/Limits.h"
#include "richtext/document/ListLabel.h"
#include "richtext/document/PlainText.h"
#include "tests/richtext/RtfDump.h"

using namespace richtext;

namespace {

TEST(RtfFormats, HasNoMoreLinkAndTabsThanAreKept) {
  const std::string link = R"({\rtf1{\field{\*\fldinst HYPERLINK )";
  for (const bool isTooLong : {false, true}) {
    const std::string target(MaxLink + isTooLong, 'x');
    ExpectReads(link + target + R"(}{\fldrslt b}}})", isTooLong ? "b" : "(-> " + target + ")b()");
  }
  std::string many = R"({\rtf1\pard)";
  std::string dump = "[";
  for (std::size_t i = 1; i <= MaxTabStops + 2; ++i) {
    many += "\\tx" + std::to_string(i);
    if (i > 2) dump += (i > 3 ? " tab" : "tab") + std::to_string(i);
  }
  ExpectReads(many + " a}", dump + "]a");
}

TEST(RtfFormats, ReadsListsOfTables) {
  const std::string tables =
      R"({\rtf1{\*\listtable{\list\listtemplateid7\listhybrid)"
      R"({\listlevel\levelnfc0\levelnfcn4\levelstartat2{\leveltext\'03(\'00);}{\levelnumbers\'02;}\li99})"
      R"({\listlevel\levelnfc23{\leveltext\'01\u-3929 ?;}{\levelnumbers;}\f3}{\listname ;}\listid5})"
      R"({\list{\listlevel\levelnfc0{\leveltext\'04\'00.\'01.;}}\listid-6})"
      R"({\list{\listlevel\levelnfc0{\leveltext\'00;}}\listid7})"
      R"({\list{\listlevel\levelnfc3{\leveltext\'02\'00.;}}\listid8}})"
      R"({\*\listoverridetable{\listoverride\listid5\listoverridecount0\ls1})"
      R"({\listoverride\listid-6\listoverridecount1{\lfolevel\listoverridestartat\levelstartat8}\ls2}{\listoverride\listid7\ls3}{\listoverride\listid8\ls4})"
      R"({\listoverride\listid8\listoverridecount1{\lfolevel\listoverridestartat}\ls5})"
      R"({\listoverride\listid8{\lfolevel\listoverrideformat{\listlevel\levelnfc1\levelstartat9}}\ls6}})";
  const Example lists[] = {
      {R"(\ls1{\listtext (b)\tab}a\par b\par\ilvl1 c\par\pard d})",
       "[letter2 (#)]a|[letter2 (#)]b|[>bullet \u25AA]c|d"},
      {R"(\ls2\ilvl9 a\par\ls1\ilvl0 b\par\ls0 c})", "[>>>>>>>>decimal1 #.]a|[letter2 (#)]b|c"},
      {R"(\ls2 a\par})", "[decimal8 #.]a"},
      {R"(\ls3{\listtext\tab}a\par})", "a"},
      {R"(\ls4 a\par})", "[LETTER1 #.]a"},
      // What goes on behind other text begins with the next number there, a deeper level anew.
      {R"(\ls1 a\par b\par\pard x\par\pard\ls1 c\par})", "[letter2 (#)]a|[letter2 (#)]b|x|[letter4 (#)]c"},
      {R"(\ls2 a\par\ilvl2 b\par\ilvl0 c\par\ilvl2 d\par})",
       "[decimal8 #.]a|[>>decimal1 #.]b|[decimal8 #.]c|[>>decimal1 #.]d"},
      // An override that restarts counts for itself, right behind the list's other items too; one may have
      // a look of its own.
      {R"(\ls4 a\par b\par\ls5 c\par d\par\pard x\par\pard\ls5 e\par\ls4 f\par)",
       "[LETTER1 #.]a|[LETTER1 #.]b|[LETTER1' #.]c|[LETTER1' #.]d|x|[LETTER3 #.]e|[LETTER3' #.]f"},
      {R"(\ls6 a\par\ls4 b\par\ls4\ilvl8 c\par)", "[ROMAN9 #]a|[LETTER10 #.]b|[>>>>>>>>LETTER1 #.]c"},
  };
  for (const auto& [rtf, dump] : lists) ExpectReads(tables + rtf + '}', dump);
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

TEST(RtfFormats, ReadsShapesObjectsAndFieldsThatAreSigns) {
  const std::string older = R"( {\sv {\pict\pngblip 00}x}}}{\shprslt{\*\do y}{\pict\pngblip 0001}\par}}b})";
  ExpectEach({
      {R"({\rtf1 a{\shp{\*\shpinst{\sp{\sn pib})" + older, "a<png 1 0x0>b"},
      {R"({\rtf1 a{\shp{\*\shpinst{\sp{\sn fillBlip})" + older, "a<png 2 0x0>b"},
  });
}

TEST(PlainText, HoldsWhatIsRead) {
  EXPECT_EQ(PlainText(ReadRtf(
                R"({\rtf1 a\line\b b\v c\v0\tab{\pict\pngblip 00}\par{\v\par}{\listtext 1.}\u233?\par})")),
            "a\nb\t\n\n\xC3\xA9");
}

}  // namespace
