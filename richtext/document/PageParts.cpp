#include "richtext/document/PageParts.h"

#include "richtext/document/Document.h"
#include "richtext/document/FormatNumbers.h"

namespace richtext {
namespace {

// What the numbers of a part are in the whole page.
template <class Format>
std::vector<std::uint32_t> NumbersOf(const std::vector<Format>& formats, FormatNumbers<Format>& numbers) {
  std::vector<std::uint32_t> known;
  for (const Format& format : formats) known.push_back(numbers(format));
  return known;
}

class Joiner {
 public:
  void Add(const Document& part) {
    const auto formats = NumbersOf(part.formats, formats_);
    const auto paragraphFormats = NumbersOf(part.paragraphFormats, paragraphFormats_);
    page_.text += part.text;
    for (const Run& run : part.runs) page_.runs.push_back({run.length, formats[run.format]});
    for (const Paragraph& paragraph : part.paragraphs)
      page_.paragraphs.push_back({paragraph.length, paragraphFormats[paragraph.format],
                                  formats[paragraph.markFormat], paragraph.place});
    const auto rowFormats = NumbersOf(part.rowFormats, rowFormats_);
    for (const std::uint32_t row : part.rows) page_.rows.push_back(rowFormats[row]);
    page_.pictures.insert(page_.pictures.end(), part.pictures.begin(), part.pictures.end());
    page_.tabDistance = part.tabDistance;
  }
  Document Take() { return std::move(page_); }

 private:
  Document page_;
  FormatNumbers<CharacterFormat> formats_{page_.formats};
  FormatNumbers<ParagraphFormat> paragraphFormats_{page_.paragraphFormats};
  FormatNumbers<RowFormat> rowFormats_{page_.rowFormats};
};

}  // namespace

Document Join(const PageParts& parts) {
  Joiner joiner;
  for (const auto& part : parts) joiner.Add(*part);
  return joiner.Take();
}

}  // namespace richtext
