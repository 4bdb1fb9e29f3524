#include <algorithm>
#include <gtest/gtest.h>
#include <string>

#include "richtext/RtfReader.h"
#include "richtext/RtfWriter.h"
#include "tests/richtext/RtfDump.h"

using namespace richtext;

namespace {

// One of everything.
const std::string Rich =
    "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fswiss\\fcharset0 Arial;}{\\f1\\fcharset161 "
    "Caf\\'e9;}}\r\n"
    "{\\colortbl ;\\red255\\green0\\blue0;\\red0\\green128\\blue1;}\r\n"
    "{\\*\\generator Somebody 1.0;}\\viewkind4\\uc1\\pard\\lang1033\\f0\\fs20 Dear \\b diary\\b0 ,\\par\r\n"
    "\\pard\\qc\\fi-360\\li720 \\cf1\\ul red\\ulnone\\cf0\\tab{\\f1\\'e1\\u955?\\fs40 big}\\line "
    "next\\par\r\n"
    "\\pard {\\pict\\pngblip\\picwgoal300\\pichgoal150 89504e47}\\strike gone\\strike0  "
    "\\u-10179?\\u-8704?\\par\r\n"
    "{\\field{\\*\\fldinst{HYPERLINK x}}{\\fldrslt there}}{\\i\\par}\\bin3 }}}\\par\r\n}\r\n";

// A document of one paragraph.
Document OneParagraph(const std::u16string& text, const CharacterFormat& format = {}) {
  Document document = EmptyDocument();
  document.formats[0] = format;
  document.text = text;
  document.paragraphs[0].length = static_cast<std::uint32_t>(text.size());
  if (!text.empty()) document.runs.push_back({static_cast<std::uint32_t>(text.size()), 0});
  return document;
}

CharacterFormat Format(const std::string& fontName, std::int32_t halfPoints) {
  CharacterFormat format;
  format.fontName = fontName;
  format.halfPoints = halfPoints;
  return format;
}

// What lies between the header and the paragraph's end.
std::string Body(const std::string& rtf) {
  const std::string begin = "\\viewkind4\\uc1\\pard\\fs24";
  const std::size_t from = rtf.find(begin) + begin.size();
  return rtf.substr(from, rtf.rfind("\\par\r\n}\r\n") - from);
}

TEST(RtfWriter, WritesTheClassicShape) {
  EXPECT_EQ(WriteRtf(EmptyDocument()),
            "{\\rtf1\\ansi\\ansicpg1252\r\n\\viewkind4\\uc1\\pard\\fs24\\par\r\n}\r\n");
  EXPECT_EQ(
      WriteRtf(ReadRtf(Rich)),
      "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}{\\f1\\fnil\\fcharset0 "
      "Caf\\u953?;}}\r\n"
      "{\\colortbl ;\\red255\\green0\\blue0;}\r\n"
      "\\viewkind4\\uc1\\pard\\f0\\fs20 Dear \\b diary\\b0 ,\\par\r\n"
      "\\pard\\fi-360\\li720\\qc\\cf1\\ul red\\cf0\\ulnone\\tab\\f1\\u945?\\u955?\\fs40 big\\f0\\fs20\\line "
      "next\\par\r\n"
      "\\pard{\\pict\\pngblip\\picwgoal300\\pichgoal150\r\n89504e47\r\n}\\strike gone\\strike0  "
      "\\u-10179?\\u-8704?\\par\r\n{\\field{\\*\\fldinst{HYPERLINK \"x\"}}{\\fldrslt "
      "there}}\\i\\par\r\n\\i0\\par\r\n}\r\n");
}

TEST(RtfWriter, WritesListsAndLinksForOldReaders) {
  const std::string header = "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 ;}";
  const std::string rtf =
      "{\\f1\\fnil\\fcharset2 Symbol;}}\r\n\\viewkind4\\uc1"
      "\\pard{\\pntext\\f1\\'b7\\tab}{\\*\\pn\\pnlvlblt\\pnf1\\pnindent0{\\pntxtb\\'b7}}\\fi-360\\li720"
      "\\f0\\fs24 a\\par\r\n{\\pntext\\f1\\'b7\\tab}b\\par\r\n"
      "\\pard{\\pntext iv)\\tab}{\\*\\pn\\pnlvlbody\\pnindent0\\pnstart4\\pnlcrm{\\pntxta )}} c\\par\r\n"
      "{\\pntext v)\\tab}{\\field{\\*\\fldinst{HYPERLINK \"x\\\\\\\\\\u233?\"}}{\\fldrslt\\b d}} e\\par\r\n"
      "\\pard f\\par\r\n}\r\n";
  EXPECT_EQ(WriteRtf(ReadRtf(header + rtf)), header + rtf);
}

TEST(RtfWriter, EscapesWhatIsNotPlainText) {
  EXPECT_EQ(Body(WriteRtf(OneParagraph(u"a\\b{c}\t d\u2028e"))), " a\\\\b\\{c\\}\\tab  d\\line e");
  EXPECT_EQ(Body(WriteRtf(OneParagraph(u"\u00A0x\u00AD-\u2011"))), "\\~x\\--\\_");
  EXPECT_EQ(Body(WriteRtf(OneParagraph(u"5\u00E9\u2014\U0001F600"
                                       u"1"))),
            " 5\\u233?\\u8212?\\u-10179?\\u-8704?1");
}

TEST(RtfWriter, KeepsEveryCharacterThatADocumentHolds) {
  std::u16string all;
  for (char32_t code = 0x20; code <= 0x10FFFF; code += code < 0x3000 ? 1 : 13) {
    const bool none = (code >= 0xD800 && code <= 0xDFFF) || IsNoncharacter(code) || code == PictureMark ||
                      code == ParagraphSeparator;
    if (!none) AppendCodePoint(code, all);
  }
  const Document document = OneParagraph(all);
  const std::string written = WriteRtf(document);
  EXPECT_EQ(ReadRtf(written), document);
  EXPECT_TRUE(std::all_of(written.begin(), written.end(), [](char byte) { return byte > 0; }));
}

TEST(RtfWriter, KeepsPicturesOfAllBytes) {
  Document document = OneParagraph(u"\uFFFC\uFFFC");
  std::string bytes;
  for (int i = 0; i < 1000; ++i) bytes += static_cast<char>(i * 7);
  document.pictures = {{PictureKind::Png, bytes, {}, 1500, 0},
                       {PictureKind::Png, bytes.substr(0, 64), {}, 0, 20}};
  EXPECT_EQ(ReadRtf(WriteRtf(document)), document);
}

// What no reader makes is brought into a document's form once, and stays so.
TEST(RtfWriter, PutsRightWhatNoDocumentHolds) {
  const auto settled = [](const Document& document) {
    const std::string written = WriteRtf(document);
    EXPECT_EQ(WriteRtf(ReadRtf(written)), written);
    return Dump(ReadRtf(written));
  };
  EXPECT_EQ(settled(OneParagraph(u"a\u0001\uFFFC\n\u2029" + std::u16string(1, u'\xD83D') + u"b\uFFFE")),
            "a\uFFFD\uFFFD\uFFFD\uFFFD\uFFFDb\uFFFD");
  EXPECT_EQ(settled(OneParagraph(u"x", Format(" A;{\\}\x01\xC3\xA9 ", -3))), "(1 A;{\\}é)x");
  CharacterFormat wide = Format(std::string(500, 'N'), 5000);
  wide.color = 0xFF123456;
  EXPECT_EQ(settled(OneParagraph(u"x", wide)), "(3276 " + std::string(64, 'N') + " #563412)x");
  Document twice = OneParagraph(u"ab");
  twice.formats.assign(3, Format("A", 20));
  twice.runs = {{1, 2}, {1, 1}};
  twice.paragraphFormats[0].leftIndent = 99999;
  EXPECT_EQ(settled(twice), "[li32767](20 A)ab");
}

TEST(RtfWriter, EveryTruncationIsADocument) {
  for (std::size_t length = 0; length <= Rich.size(); ++length) {
    const Document document = ReadRtf(std::string(Rich, 0, length));
    const std::string written = WriteRtf(document);
    ASSERT_EQ(ReadRtf(written), document) << length;
    ASSERT_EQ(WriteRtf(ReadRtf(written)), written) << length;
  }
}

// A page deciphered under a wrong shift looks like this.
TEST(RtfWriter, AnyByteInAnyPlaceIsADocument) {
  for (std::size_t at = 0; at < Rich.size(); ++at)
    for (const int byte : {0x00, 0x0A, 0x5C, 0x7B, 0x7D, 0x2D, 0x39, 0x81, 0xFF}) {
      std::string damaged = Rich;
      damaged[at] = static_cast<char>(byte);
      const Document document = ReadRtf(damaged);
      ASSERT_EQ(ReadRtf(WriteRtf(document)), document) << at << ' ' << byte;
    }
}

}  // namespace
