#include <gtest/gtest.h>
#include <string>

#include "richtext/Limits.h"
#include "richtext/RtfReader.h"
#include "richtext/RtfWriter.h"

using namespace richtext;

namespace {

std::string Repeated(const std::string& part, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += part;
  return all;
}

// What few bytes bring back is written in full: the end of a group, a paragraph of a long link. Each of these
// is the worst of its kind.
TEST(RtfGrowth, StaysWithinABound) {
  const std::string link = "{\\field{\\*\\fldinst HYPERLINK \"" + std::string(2040, 'x') + "\"}{\\fldrslt ";
  const std::string listText = "{\\*\\pn\\pndec{\\pntxtb " + Repeated("\\u9999?", 32) + "}{\\pntxta " +
                               Repeated("\\u9999?", 32) + "}}";
  std::string tabs;
  for (int i = 0; i < 40; ++i) tabs += "\\tqdec\\tx" + std::to_string(10'000 + i * 300);
  const std::string looks =
      "{\\colortbl;\\red1;}\\b\\i\\ulwave\\strike\\super\\v\\caps\\fs44\\cf1\\highlight1 ";
  struct Example {
    std::string rtf;
    std::size_t links;  // bytes that links may cost besides
  };
  const Example examples[] = {
      {link + Repeated("a\\par ", 3000), MaxLinkText},
      {link + Repeated("{\\b a}b", 3000), 0},
      {Repeated(link + "a}}b", 1000), 0},
      {listText + Repeated("{\\pard\\par}\\par", 3000), 0},
      {tabs + Repeated("{\\tx1\\par}\\par", 3000), 0},
      {looks + Repeated("{\\plain a}b", 3000), 0},
  };
  for (const auto& [rtf, links] : examples) {
    const Document document = ReadRtf("{\\rtf1" + rtf);
    const std::string written = WriteRtf(document);
    EXPECT_LT(written.size(), 80 * rtf.size() + links) << rtf.substr(0, 40);
    EXPECT_TRUE(ReadRtf(written) == document) << rtf.substr(0, 40);
    EXPECT_EQ(WriteRtf(ReadRtf(written)).size(), written.size()) << rtf.substr(0, 40);
  }
}

}  // namespace
