// What is written is read as the same document, is written the same again, and stays near the input in size.
#include <algorithm>

#include "fuzz/Require.h"
#include "richtext/document/Limits.h"
#include "richtext/rtf/Reader.h"
#include "richtext/rtf/Writer.h"

namespace {

// A few bytes of input, the end of a group, can bring back a paragraph's 32 tab stops and its list's texts,
// which are written in full again. A link is written again for each of its paragraphs, but what all may cost
// has an end.
constexpr std::size_t MostBytesForOne = 80;
constexpr std::size_t HeaderAndTables = 4096;
constexpr std::size_t BytesOfLetter = 9;
constexpr std::size_t BytesOfLinkByte = 4;  // escaped

std::size_t MostBytes(const richtext::Document& document, std::size_t size) {
  const bool hasLinks = std::any_of(document.formats.begin(), document.formats.end(),
                                    [](const auto& format) { return !format.link.empty(); });
  const bool hasLists =
      std::any_of(document.paragraphFormats.begin(), document.paragraphFormats.end(),
                  [](const auto& format) { return format.list.kind != richtext::ListKind::None; });
  return HeaderAndTables + MostBytesForOne * size + (hasLinks ? BytesOfLinkByte * richtext::MaxLinkText : 0) +
         (hasLists ? richtext::MaxListTable + BytesOfLetter * richtext::MaxLongLabels : 0);
}

}  // namespace

void Try(std::string_view input) {
  const richtext::Document document = richtext::ReadRtf(input);
  const std::string written = richtext::WriteRtf(document);
  const richtext::Document again = richtext::ReadRtf(written);
  Require(again == document, "what is written is read as the same document");
  Require(richtext::WriteRtf(again) == written, "it is written once more in the same bytes");
  Require(written.size() <= MostBytes(document, input.size()), "it does not grow");
}
