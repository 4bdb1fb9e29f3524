#include "tests/richtext/RtfDump.h"

using namespace richtext;

namespace {

TEST(RtfReader, ReadsEachExampleAsToldAndWritesItAgain) {
  ExpectEach(ExamplesOf("rtf.txt"));
}

TEST(RtfReader, ReadsWhatNoExampleHoldsAsALine) {
  ExpectEach({
      {"{\\rtf1 a\\\nb\\\r\nc}", "a|b|c"},
      {"{\\rtf1 a\r\nb\nc\\b\r\n d}", "abc(b) d"},
      {"{\\rtf1{\\pict\\pngblip 89 5\r\n0 4E47}}", "<png 4 0x0>"},
      {R"({\rtf1 a\line b\tab c\	d})", "a/b>c>d"},
      {R"({\rtf1 \\ \{\}\~ x\-y\_z})", "\\ {}\u00A0 x\u00ADy\u2011z"},
      {"{\\rtf1\\ansi caf\xE9}", "café"},
      {R"({\rtf1{\fonttbl{\f1\fcharset2 Wingdings;}{\f2\fcharset2 Webdings;}}\f1 J\u-3844 ?\u61514?\'4b\f2 J})",
       "(Wingdings)☺✔☺\uF04B(Webdings)\uF04A"},
      {R"({\rtf1 \u960?\u-3913?\u955 ?})", "π\uF0B7λ"},
      {"just text\r\ntwo\rthree\nfour", "just text|two|three|four"},
      {"\xEF\xBB\xBF{\\rtf1 x}", "x"},
      {"caf\xE9 \x80", "café €"},
      {"a\n", "a|"},
      {std::string("a\0b\x01\x0B", 5), "a b/"},
  });
}

}  // namespace
