#include "tests/richtext/RtfDump.h"

using namespace richtext;

namespace {

TEST(RtfReader, ReadsTextAndParagraphs) {
  ExpectEach({
      {R"({\rtf1 one\par two})", "one|two"},
      {R"({\urtf1 one})", "one"},
      {R"({\rtf1})", ""},
      // The last \par is no more than the last paragraph's end.
      {R"({\rtf1 X\par\par})", "X|"},
      {R"({\rtf1 X\par\pard\qc })", "X"},
      {"{\\rtf1 a\\\nb\\\r\nc}", "a|b|c"},
      {"{\\rtf1 a\r\nb\nc\\b\r\n d}", "abc(b) d"},
      {R"({\rtf1 a\line b\tab c\	d})", "a/b>c>d"},
      {R"({\rtf1 \\ \{\}\~ x\-y\_z})", "\\ {}\u00A0 x\u00ADy\u2011z"},
      {R"({\rtf1 \lquote a\rquote\ldblquote b\rdblquote\emdash\endash\bullet})",
       "\u2018a\u2019\u201Cb\u201D\u2014\u2013\u2022"},
      {R"({\rtf1 a\zzz12 b\b-c})", "ab(b)-c"},
      {R"({\rtf1\trowd\cellx99 a\cell b\cell\row c})", "a>b>|c"},
      {R"({\rtf1\intbl a\nestcell b\nestcell{\*\nesttableprops\trowd\nestrow}{\nonesttables\par}c\cell\row})",
       "a>b>|c>"},
      {R"({\rtf1 a} after)", "a"},
      {R"({\rtf1 a\sect b\page c\column d\softline e\lbr0 f})", "a|b|c|d/e/f"},
  });
}

TEST(RtfReader, ReadsBytesByTheirCodePage) {
  ExpectEach({
      {R"({\rtf1\ansi a\'e9\'80})", "aé€"},
      {"{\\rtf1\\ansi caf\xE9}", "café"},
      {R"({\rtf1\ansi\ansicpg1251\'cf\'f0})", "Пр"},
      {R"({\rtf1\mac\'8e})", "é"},
      {R"({\rtf1\pc\'82\'e1})", "éß"},
      {R"({\rtf1\pca\'b5})", "Á"},
      {R"({\rtf1\ansi\ansicpg1250\mac\'b9})", "ą"},
      {R"({\rtf1\ansicpg1252{\fonttbl{\f0\fcharset161 A;}{\f1\fcharset238 B;}}\f0\'e1{\f1\'b9}\'e2})",
       "(A)α(B)ą(A)β"},
      {R"({\rtf1\ansicpg1251{\fonttbl{\f0\fcharset1 A;}{\f1\fcharset1\cpg1253 B;}}\f0\'e1\f1\'e1})",
       "(A)б(B)α"},
      // Signs that other fonts have too are these; the rest stays what it is in its font.
      {R"({\rtf1{\fonttbl{\f1\fcharset2 Symbol;}}a{\f1\'b7 x}})", "a(Symbol)• ξ()"},
      {R"({\rtf1{\fonttbl{\f1\fcharset2 Wingdings;}{\f2\fcharset2 Webdings;}}\f1 J\u-3844 ?\u61514?\'4b\f2 J})",
       "(Wingdings)☺✔☺\uF04B(Webdings)\uF04A"},
      // One character of two bytes, whichever way its halves are written.
      {R"({\rtf1\ansicpg932\'8cR\'8c\'52x})", "軍軍x"},
      {R"({\rtf1\ansicpg932\'b1\'8c x{\'8c}y})", "\uFF71\uFFFD xy"},
      {R"({\rtf1{\fonttbl{\f0\fcharset134 A;}{\f1\fcharset129 B;}}\f0\'d6\'d0\f1\'c7\'d1})", "(A)中(B)한"},
      {R"({\rtf1{\fonttbl{\f0\fcharset136 A;}{\f1\fcharset130 B;}}\f0\'a4\'a4\'a4\f1\'b4\'e2})",
       "(A)中(B)억"},
      {"{\\rtf1\\ansicpg65001 \\'c3\\'a9\xE2\x82\xAC\xF0\x9F\x98\x80\\'c3x\\'80}", "é€😀\uFFFDx\uFFFD"},
      // No text holds the end of a paragraph.
      {"{\\rtf1\\ansicpg65001 a\\'e2\\'80\\'a9\xE2\x80\xA9\\u8233?c}", "a//|c"},
      {R"({\rtf1\ansi\ansicpg10007\'80\ansicpg852\'88})", "\u0410\u0142"},
      {R"({\rtf1\ansicpg10001\'82\'a8})", "お"},
  });
}

TEST(RtfReader, ReadsUnicode) {
  ExpectEach({
      {R"({\rtf1 \u960?\u-3913?\u955 ?})", "π\uF0B7λ"},
      {R"({\rtf1 \u55357?\u56832?\u-10179?\u-8704?\u128512?})", "😀😀😀"},
      {R"({\rtf1 a\u55357?b\u56832?c\u55357?})", "a\uFFFDb\uFFFDc\uFFFD"},
      {R"({\rtf1\uc0\u960 a{\uc2\u960 bcd}\u960 e})", "πaπdπe"},
      {R"({\rtf1\uc2\u960\'41\'42c\u960 d\emdash e})", "πcπe"},
      {R"({\rtf1\uc2\u960 a{b}c\u960 {\b d}e})", "πbcπ(b)d()e"},
      {"{\\rtf1\\uc2\\u960 \\bin3 }}}xy}", "πy"},
      // A forgotten fallback takes no other character and no paragraph with it.
      {R"({\rtf1\u960\u961\par b})", "πρ|b"},
      {R"({\rtf1{\upr{ansi}{\*\ud{\b\u960?}}}x})", "(b)π()x"},
      // No mark of a picture, no line end and no control character hides in the text.
      {R"({\rtf1 a\u-4?b\u8233?c\u13?d\u8232?e\u7?f\u-2?})", "a\uFFFDb|c|d/ef\uFFFD"},
  });
}

TEST(RtfReader, ReadsFontsSizesAndColors) {
  ExpectEach({
      {R"({\rtf1\deff1{\fonttbl{\f0 A;}{\f1\fnil\fcharset0 Times New Roman;}}x\f0\fs40 y\plain z})",
       "(Times New Roman)x(40 A)y(Times New Roman)z"},
      {R"({\rtf1{\fonttbl{\f3\fnil Caf\'e9{\*\falt Other}{\*\panose 02};}{\f4 \u960?;}}\f3 x\f4 y\f9 z})",
       "(Café)x(π)y()z"},
      {R"({\rtf1{\fonttbl\f0\fnil A;\f1\fnil B;}\f1 x})", "(B)x"},
      {R"({\rtf1{\fonttbl{\f0\fnil A}{\f1 {\b B}C}{\f2 D\'3bE;}}\f0 x\f1 y\f2 z})", "(A)x(BC)y(D;E)z"},
      {R"({\rtf1{\fonttbl{\f0\fcharset204 \'cf;}{\f1\fcharset2 Wingdings;}}\f0 x\f1\u960? })",
       "(П)x(Wingdings)π "},
      {R"({\rtf1 a\fs0 b\fs-8 c\fs9 d\fs e\fs99999 f})", "abc(9)d()e(3276)f"},
      {R"({\rtf1{\colortbl ;\red255\green0\blue0;}a\cf1 b\cf0 c\cf1 d\cf7 e})",
       "a(#ff0000)b()c(#ff0000)d()e"},
      {R"({\rtf1{\colortbl\red0\green0\blue255;\red300\green-1;\red1}\cf0 a\cf1 b\cf2 c})",
       "(#0000ff)a(#ff0000)b(#010000)c"},
  });
}

TEST(RtfReader, ReadsCharacterAndParagraphFormats) {
  ExpectEach({
      {R"({\rtf1 a\b b\i c\b0 d\i0 e})", "a(b)b(b i)c(i)d()e"},
      {R"({\rtf1\ul a\ulnone b\ulwave c\ul0 d\uld e\ulw0 f})", "(u)a()b(u-wave)c()d(u-dotted)e()f"},
      {R"({\rtf1\qc a\par b\par\pard\qr c\par\qj d\par\ql e\par})",
       "[center]a|[center]b|[right]c|[justify]d|e"},
      {R"({\rtf1\li720\ri360\fi-200 a\par\b\plain b\par\li999999 c})",
       "[li720 ri360 fi-200]a|[li720 ri360 fi-200]b|[li32767 ri360 fi-200]c"},
      // A paragraph takes what is in force at its end, its end the character format there.
      {R"({\rtf1 a\qc\par\pard b{\qr\par}c})", "[center]a|[right]b|c"},
      {R"({\rtf1{\fs26 Third}\par x})", "(26)Third()|x"},
      // Without an end the last paragraph stays as it was written.
      {R"({\rtf1 a\par{\pard\qc b}})", "a|[center]b"},
  });
}

TEST(RtfReader, ReadsPicturesAmongText) {
  ExpectEach({
      {R"({\rtf1 a{\pict\pngblip\picwgoal720\pichgoal360 89}b})", "a<png 1 720x360>b"},
      {R"({\rtf1{\pict\pngblip\picw10\picscalex200\bin4 }{\\x}b})", "<png 4 300x0>b"},
      {R"({\rtf1{\*\shppict{\pict{\*\picprop{\sp{\sn a}{\sv 1}}}\pngblip{\*\blipuid 0123}00ff}}{\nonshppict{\pict\wmetafile8 0011}}})",
       "<png 2 0x0>"},
      {R"({\rtf1 a{\nonshppict{\pict\pngblip 00}}{\*\shppict{\pict\pngblip}}{\nonshppict{\pict\pngblip 0011}}})",
       "a<png 1 0x0><png 2 0x0>"},
      {R"({\rtf1 a{\pict\pngblip}b{\pict\pngblip zz}c})", "abc"},
  });
}

TEST(RtfReader, PassesOverWhatIsNotTheText) {
  ExpectEach({
      {R"({\rtf1 a{\*\zzz b{\*\yyy c}{\b d}}e{\zzz f}g})", "aefg"},
      {"{\\rtf1 a{\\*\\zzz \\bin4 }}}}\\}\\'7d}b}", "ab"},
      {R"({\rtf1{\info{\title T}}{\stylesheet{\s0 Normal;}}{\header H}a{\footnote F}})", "a"},
      // The outermost group is the document, whatever stands in it.
      {R"({\rtf1 a\info b\pict c})", "abc"},
  });
}

TEST(RtfReader, TakesOtherTextAsItIs) {
  ExpectEach({
      {"just text\r\ntwo\rthree\nfour", "just text|two|three|four"},
      {"{no\\b rtf}", "{no\\b rtf}"},
      {"\xEF\xBB\xBF{\\rtf1 x}", "x"},
      {"caf\xE9 \x80", "café €"},
      {"a\n", "a|"},
      {std::string("a\0b\x01\x0B", 5), "a b/"},
      {"", ""},
  });
}

TEST(RtfReader, KeepsWhatItReadOfBadInput) {
  ExpectEach({
      {"{\\rtf1 abc\\'4", "abc4"},
      {R"({\rtf1 a\'zzb\'4gc\'-1d})", "azzb4gc-1d"},
      {R"({\rtf1 x}}}} y)", "x"},
      {R"({\rtf1{\fonttbl{\f0 A;}{\f1 Ti)", "(A)"},
      {R"({\rtf1{\b{\pict\wmetafile8\picwgoal9\pichgoal9 01{\*\blipuid 01)", R"((b)<wmf 1 \wmetafile8 9x9>)"},
      {R"({\rtf1 a{\pict\pngblip\bin99999999999999999999 x}b})", "ab"},
      {R"({\rtf1\fs-99999999999999999999 a\u99999999999?\u-99999?b})", "a\uFFFD\uFFFDb"},
      {R"({\rtf1\uc2147483647\u960 abc\par d\uc-5\u960 e})", "π|dπe"},
      {R"({\rtf1{\*{\b x}}y})", "(b)x()y"},
      {R"({\rtf1{\upr\ud x}{\pict\pict\pngblip 00}y})", "x<png 1 0x0>y"},
  });
}

}  // namespace
