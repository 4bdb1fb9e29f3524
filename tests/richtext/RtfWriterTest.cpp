#include <algorithm>

#include "platform/files/InputFile.h"
#include "tests/richtext/RtfDump.h"

using namespace richtext;

namespace {

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

// Old readers depend on it; the pages are among those that the fuzz targets begin with.
TEST(RtfWriter, WritesTheClassicShape) {
  EXPECT_EQ(WriteRtf(EmptyDocument()),
            "{\\rtf1\\ansi\\ansicpg1252\r\n\\viewkind4\\uc1\\pard\\fs24\\par\r\n}\r\n");
  for (const std::string page : {"classic.rtf", "classic-lists.rtf"}) {
    const std::string rtf = platform::ReadFile(fixture::PathOfSample("../../fuzz/seeds/rtf/" + page));
    EXPECT_EQ(WriteRtf(ReadRtf(rtf)), rtf);
  }
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

TEST(RtfWriter, WritesAPictureAsItsKindUsuallyIs) {
  Document document = ReadRtf("{\\rtf1{\\pict\\pngblip 00}}");
  const std::tuple<PictureKind, std::string, std::string> examples[] = {
      {PictureKind::Jpeg, "\xFF\xD8", "{\\pict\\jpegblip\\picwgoal30\r\nffd8\r\n}"},
      {PictureKind::Dib, "(", "{\\pict\\dibitmap0\\picwgoal30\r\n28\r\n}"},
      {PictureKind::Metafile, "\1", "{\\pict\\wmetafile8\\picwgoal30\r\n01\r\n}"},
      {PictureKind::Png, std::string(65, 'D'), std::string(128, '4') + "\r\n44\r\n}"},
      {PictureKind::Png, "", "\\pard\\fs24\\u-3 ?\\par"},
  };
  for (const auto& [kind, bytes, group] : examples) {
    document.pictures[0] = {kind, bytes, {}, 30, 0};
    EXPECT_NE(WriteRtf(document).find(group), std::string::npos) << WriteRtf(document);
  }
}

}  // namespace
