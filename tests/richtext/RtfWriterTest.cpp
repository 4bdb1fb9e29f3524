#include <algorithm>

#include "tests/richtext/RtfDump.h"

using namespace richtext;

namespace {

// One of everything.
const std::string Rich =
    "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fswiss\\fcharset0 Arial;}{\\f1\\fcharset161 "
    "Caf\\'e9;}}\r\n"
    "{\\colortbl ;\\red255\\green0\\blue0;\\red0\\green128\\blue1;}\r\n"
    "{\\*\\generator Somebody 1.0;}\\viewkind4\\uc1\\pard\\lang1033\\f0\\fs20 Dear \\b diary\\b0 "
    ",\\~\\{x\\}\\-\\_\\\\\\par\r\n"
    "\\pard\\qc\\fi-360\\li720 \\cf1\\ul red\\ulnone\\cf0\\tab{\\f1\\'e1\\u955?\\fs40 big}\\line "
    "next\\par\r\n"
    "\\pard {\\pict\\pngblip\\picwgoal300\\pichgoal150 89504e47}\\strike gone\\strike0  "
    "\\u-10179?\\u-8704?\\par\r\n"
    "{\\field{\\*\\fldinst{HYPERLINK x}}{\\fldrslt there}}{\\i\\par}\\bin3 }}}\\par\r\n}\r\n";

// A document of one paragraph.
Document OneParagraph(const std::u16string& text, const std::string& fontName = {}, int halfPoints = 24) {
  Document document = EmptyDocument();
  document.formats[0].fontName = fontName;
  document.formats[0].halfPoints = halfPoints;
  document.text = text;
  document.paragraphs[0].length = static_cast<std::uint32_t>(text.size());
  document.runs.push_back({document.paragraphs[0].length, 0});
  return document;
}

TEST(RtfWriter, WritesTheClassicShape) {
  EXPECT_EQ(WriteRtf(EmptyDocument()),
            "{\\rtf1\\ansi\\ansicpg1252\r\n\\viewkind4\\uc1\\pard\\fs24\\par\r\n}\r\n");
  EXPECT_EQ(
      WriteRtf(ReadRtf(Rich)),
      "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}{\\f1\\fnil\\fcharset0 "
      "Caf\\u953?;}}\r\n"
      "{\\colortbl ;\\red255\\green0\\blue0;}\r\n"
      "\\viewkind4\\uc1\\pard\\f0\\fs20 Dear \\b diary\\b0 ,\\~\\{x\\}\\-\\_\\\\\\par\r\n"
      "\\pard\\fi-360\\li720\\qc\\cf1\\ul red\\cf0\\ulnone\\tab\\f1\\u945?\\u955?\\fs40 big\\f0\\fs20\\line "
      "next\\par\r\n"
      "\\pard{\\pict\\pngblip\\picwgoal300\\pichgoal150\r\n89504e47\r\n}\\strike gone\\strike0  "
      "\\u-10179?\\u-8704?\\par\r\n{\\field{\\*\\fldinst{HYPERLINK \"x\"}}{\\fldrslt "
      "there}}\\i\\par\r\n\\i0\\par\r\n}\r\n");
}

TEST(RtfWriter, WritesListsAndLinksForOldReaders) {
  const std::string rtf =
      "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f1\\fnil\\fcharset2 Symbol;}}\r\n\\viewkind4\\uc1"
      "\\pard{\\pntext\\f1\\'b7\\tab}{\\*\\pn\\pnlvlblt\\pnf1\\pnindent0{\\pntxtb\\'b7}}\\fi-360\\li720"
      "\\fs24 a\\par\r\n{\\pntext\\f1\\'b7\\tab}b\\par\r\n"
      "\\pard{\\pntext iv)\\tab}{\\*\\pn\\pnlvlbody\\pnindent0\\pnstart4\\pnlcrm{\\pntxta )}} c\\par\r\n"
      "{\\pntext v)\\tab}{\\field{\\*\\fldinst{HYPERLINK \"x\\\\\\\\\\u233?\"}}{\\fldrslt\\b d}} e\\par\r\n"
      "\\pard f\\par\r\n}\r\n";
  EXPECT_EQ(WriteRtf(ReadRtf(rtf)), rtf);
}

TEST(RtfWriter, KeepsEveryCharacterThatADocumentHolds) {
  std::u16string all;
  for (char32_t code = 0x20; code <= 0x10FFFF; code += code < 0x3000 ? 1 : 13) {
    const bool none = (code >= 0xD800 && code <= 0xDFFF) || IsNoncharacter(code) || code == PictureMark ||
                      code == ParagraphSeparator;
    if (!none) AppendCodePoint(code, all);
  }
  const std::string written = WriteRtf(OneParagraph(all));
  EXPECT_EQ(ReadRtf(written), OneParagraph(all));
  EXPECT_TRUE(std::all_of(written.begin(), written.end(), [](char byte) { return byte > 0; }));
}

// What no reader makes is brought into a document's form once, and stays so.
TEST(RtfWriter, PutsRightWhatNoDocumentHolds) {
  Document wide = OneParagraph(u"x", std::string(500, 'N'), 5000);
  wide.formats[0].color = 0xFF123456;
  Document twice = OneParagraph(u"ab", "A", 20);
  twice.formats.resize(3, twice.formats[0]);
  twice.runs = {{1, 2}, {1, 1}};
  twice.paragraphFormats[0].leftIndent = 99999;
  const std::pair<Document, std::string> examples[] = {
      {OneParagraph(u"a\u0001\uFFFC\n\u2029" + std::u16string(1, u'\xD83D') + u"b\uFFFE"),
       "a\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDb\uFFFD"},
      {OneParagraph(u"x", " A;{\\}\x01\xC3\xA9 ", -3), "(1 A;{\\}é)x"},
      {wide, "(3276 " + std::string(64, 'N') + " #563412)x"},
      {twice, "[li32767](20 A)ab"},
  };
  for (const auto& [document, dump] : examples) ExpectReads(WriteRtf(document), dump);
}

}  // namespace
