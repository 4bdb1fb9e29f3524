#include "richtext/document/Limits.h"
#include "richtext/document/ListLabel.h"
#include "richtext/document/PlainText.h"
#include "tests/richtext/RtfDump.h"

using namespace richtext;

namespace {

TEST(RtfFormats, ReadsEveryLookOfLetters) {
  ExpectEach({
      {R"({\rtf1\ulw a\uldb b\uldash c\uldashd d\uldashdd e\ulth f\ululdbwave g\ulhair h\ulthdash i})",
       "(u-words)a(u-double)b(u-dash)c(u-dashdot)d(u-dashdotdot)e(u-thick)f(u-wave)g(u)h(u-dash)i"},
      {R"({\rtf1\strike a\striked0 b\striked1\strike0 c\striked0 d})", "(s)abc()d"},
      {R"({\rtf1\super a\sub b\nosupersub c\up6 d\up0 e\dn f\up-3 g\dn-3 h\super0 i})",
       "(super)a(sub)b()c(super)d()e(sub)fg(super)h()i"},
      {R"({\rtf1\caps a\scaps b\caps0 c\scaps0 d\v e\v0 f})", "(caps)a(scaps)bc()d(v)e()f"},
      {R"({\rtf1{\colortbl\red1;\red2;;}\highlight1 a\cb0 b\chcbpat1 c\highlight2 d\cb0\cf0 e\highlight9 f})",
       "(on #020000)abcd(#010000)ef"},
      // White behind letters is none, unless they are marked with it.
      {R"({\rtf1{\colortbl;\red255\green255\blue255;\red9;}\cb1 a\chcbpat2 b\highlight1 c\highlight0 d\chcbpat1 e})",
       "a(on #090000)b(on #ffffff)c(on #090000)d()e"},
  });
}

TEST(RtfFormats, ReadsHyperlinks) {
  const std::pair<std::string, std::string> links[] = {
      {R"(HYPERLINK "http://x.y/?a=1&b#c")", " -> http://x.y/?a=1&b#c"},
      {R"( hyperlink  http://x.y )", " -> http://x.y"},
      {R"(HYPERLINK \\l "top" \\o "a tip")", " -> #top"},
      {R"(HYPERLINK "x.rtf" \\t "_blank" \\l "top")", " -> x.rtf#top"},
      {R"(HYPERLINK "c:\\\\a\\b \\"c\\"")", R"( -> c:\a\b "c")"},
      {R"(HYPERLINK "caf\u233?\'e9\{\}")", " -> caféé{}"},
      {R"(HYPERLINK \\* MERGEFORMAT)", ""},
      {R"(PAGEREF "x")", ""},
      {"HYPERLINK \"" + std::string(MaxLink + 1, 'x') + '"', ""},
      {"", ""},
  };
  for (const auto& [instruction, link] : links)
    ExpectReads(R"({\rtf1 a{\field{\*\fldinst{)" + instruction + R"(}}{\fldrslt{\ul b}}}c})",
                "a(u" + link + ")b()c");
  ExpectEach({
      {R"({\rtf1{{\field{\fldinst HYPERLINK x}{\fldrslt\plain\i a\par b}}}\par})",
       "(i -> x)a(i)|(i -> x)b()"},
      {R"({\rtf1{\field{\*\fldinst HYPERLINK x}{\fldrslt a{\field{\*\fldinst PAGE {\field{\*\fldinst y}{\fldrslt z}}}{\fldrslt 3}}b}}c})",
       "(-> x)a3b()c"},
      {R"({\rtf1{\field{\*\fldinst HYPERLINK x}}{\field{\fldrslt a}}})", "a"},
  });
}

TEST(RtfFormats, ReadsEveryLookOfParagraphs) {
  ExpectEach({
      {R"({\rtf1\sb120\sa-5 a\par\rtlpar b\par\ltrpar\sb0 c\par})", "[sb120]a|[rtl sb120]b|c"},
      {R"({\rtf1\sl480\slmult1 a\par\slmult0 b\par\sl-300 c\par\sl240\slmult1 d\par\sl0 e\par})",
       "[lines480]a|[atleast480]b|[exact300]c|d|e"},
      {R"({\rtf1\tx900\tqr\tx400\tqdec\tx900\tqc\tx100\tb50 a\par\pard b\tx5{\tx6}\par})",
       "[ctab100 rtab400 dtab900]a|[tab5]b"},
  });
  std::string many = R"({\rtf1\pard)";
  std::string dump = "[";
  for (std::size_t i = 1; i <= MaxTabStops + 2; ++i) {
    many += "\\tx" + std::to_string(i);
    if (i > 2) dump += (i > 3 ? " tab" : "tab") + std::to_string(i);
  }
  ExpectReads(many + " a}", dump + "]a");
}

TEST(RtfFormats, ReadsListsOfTheClassicControls) {
  ExpectEach({
      // The label comes before what tells of the list, and is no text.
      {R"({\rtf1{\fonttbl{\f1\fcharset2 Symbol;}}{\pntext\f1\'B7\tab}{\*\pn\pnlvlblt\pnf1\pnindent0{\pntxtb\'B7}}\fi-360\li720 a\par{\pntext\f1\'B7\tab}b\par\pard c\par})",
       "[li720 fi-360 bullet \u2022]a|[li720 fi-360 bullet \u2022]b|c"},
      {R"({\rtf1{\*\pn\pnlvlblt\pnindent200{\pntxtb\'b7}}a\par{\*\pn\pnlvlblt{\pntxtb -}}b\par{\*\pn\pnlvlcont}c})",
       "[li200 fi-200 bullet \u2022]a|[bullet -]b|c"},
      {R"({\rtf1{\*\pn\pnlvlbody\pndec\pnstart3{\pntxtb (}{\pntxta )}}a\par{\*\pn\pnlvlbody\pnucrm}b\par{\*\pn\pnlcltr}c\par})",
       "[decimal3 (#)]a|[ROMAN1 #]b|[letter1 #]c"},
      {R"({\rtf1{\*\pn\pnlvl2\pnucltr{\pntxta .}}a\par{\*\pn\pnlvl11}b\par\pard\ilvl1{\*\pn\pnlvlbody\pnlcrm}c})",
       "[>LETTER1 #.]a|[>bullet \u2022]b|[>roman1 #]c"},
      // A label that no list follows was meant to be read.
      {R"({\rtf1{\pntext\f1 1.\tab}a\par{\pntext\'b7\tab}})", "1.>a|·>"},
  });
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

TEST(RtfFormats, ReadsListsOfLabels) {
  ExpectEach({
      {R"({\rtf1\ls1{\listtext\tab\bullet\tab}a\par{\listtext -\tab}b\par\pard c})",
       "[bullet \u2022]a|[bullet -]b|c"},
      {R"({\rtf1{\listtext 3.\tab}a\par{\listtext 4.\tab}b\par x\par{\listtext 7.\tab}c})",
       "[decimal3 #.]a|[decimal3 #.]b|x|[decimal7 #.]c"},
      {R"({\rtf1{\listtext (ii) }a\par{\listtext B)}b\par{\listtext 1.2.}c\par{\listtext X1Y}d\par})",
       "[roman2 (#)]a|[LETTER2 #)]b|[decimal2 1.#.]c|X1Yd"},
      {R"({\rtf1{\listtext 1.}a\cell b\cell\row c})", "a>b>|c"},
      {R"({\rtf1{\listtext 1.}a\par{\listtext 1.}b\par{\listtext 2.}c\par{\listtext 1.}d})",
       "[decimal1 #.]a|[decimal1' #.]b|[decimal1' #.]c|[decimal1 #.]d"},
  });
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
      {R"({\rtf1 a{\shp{\*\shpinst\shpleft1{\sp{\sn n}{\sv v}}{\shptxt\qc b\par}}{\shprslt{\*\do{\dptxbxtext b}}}}c})",
       "a|[center]b|c"},
      {R"({\rtf1{\*\do\dobxpage{\dptxbxtext b\par}}c})", "b|c"},
      {R"({\rtf1{\object{\*\objclass X}{\*\objdata 00}{\result\i b}}c})", "(i)b()c"},
      {R"({\rtf1 a{\shp{\*\shpinst{\sp{\sn pib})" + older, "a<png 1 0x0>b"},
      {R"({\rtf1 a{\shp{\*\shpinst{\sp{\sn fillBlip})" + older, "a<png 2 0x0>b"},
      {R"({\rtf1 a{\field{\*\fldinst SYMBOL 74 \\f "Wingdings" \\s 12}{\fldrslt}}b})", "a☺b"},
      {R"({\rtf1{\field{\*\fldinst{symbol 0xF0B7 \\f Symbol}}}{\field{\*\fldinst SYMBOL 128}{\fldrslt{\b}}}})",
       "•€"},
      {R"({\rtf1{\field{\*\fldinst SYMBOL 74 \\f Wingdings}{\fldrslt x}}{\field{\*\fldinst SYMBOL}}})", "x"},
      // Words that tell of something are words within a font of signs, too.
      {R"({\rtf1{\fonttbl{\f1\fcharset2 Wingdings;}}\f1\'4a{\field{\*\fldinst SYMBOL 74 \\f Wingdings}}})",
       "(Wingdings)\u263A\u263A"},
  });
}

TEST(PlainText, HoldsWhatIsRead) {
  EXPECT_EQ(PlainText(ReadRtf(
                R"({\rtf1 a\line\b b\v c\v0\tab{\pict\pngblip 00}\par{\v\par}{\listtext 1.}\u233?\par})")),
            "a\nb\t\n\n\xC3\xA9");
}

}  // namespace
