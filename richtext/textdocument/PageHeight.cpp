#include "richtext/textdocument/PageHeight.h"

#include <algorithm>
#include <string_view>

#include "richtext/characters/Unicode.h"
#include "richtext/document/Twips.h"

namespace richtext {
namespace {

// All in pixels, 96 to the inch.
constexpr double TallestPage = 5'000'000;
constexpr double TextWidth = 400;         // a narrow window
constexpr double PerHalfPoint = 2 / 3.0;  // a letter's body
constexpr double LetterWidth = 0.6;       // of its body
constexpr double LineHeight = 1.3;        // of the tallest body in it
constexpr double LargestPicture = 20'000;
constexpr double PictureOfNoSize = 2'000;

class Estimate {
 public:
  explicit Estimate(const Document& page) : page_(page) {}

  std::size_t Paragraphs() {
    double height = 0;
    std::size_t fit = 0;
    for (const Paragraph& paragraph : page_.paragraphs) {
      height += HeightOf(paragraph);
      if (height > TallestPage) break;
      ++fit;
    }
    return fit;
  }

  double Height() {
    double height = 0;
    for (const Paragraph& paragraph : page_.paragraphs) height += HeightOf(paragraph);
    return height;
  }

 private:
  double HeightOf(const Paragraph& paragraph) {
    width_ = pictures_ = breaks_ = 0;
    body_ = BodyOf(paragraph.markFormat);
    for (const std::size_t end = at_ + paragraph.length; at_ < end; at_ += page_.runs[run_++].length)
      AddRun(page_.runs[run_]);
    const ParagraphFormat& format = page_.paragraphFormats[paragraph.format];
    // A line holds one letter at least, however narrow the window.
    const double lines = 1 + breaks_ + width_ / std::max(TextWidth, body_ * LetterWidth);
    return (format.spaceBefore + format.spaceAfter) / TwipsPerPixel + pictures_ +
           lines * LineHeightOf(format);
  }

  void AddRun(const Run& run) {
    const double body = BodyOf(run.format);
    const std::u16string_view text = std::u16string_view(page_.text).substr(at_, run.length);
    body_ = std::max(body_, body);
    width_ += body * LetterWidth * static_cast<double>(run.length);
    breaks_ += static_cast<double>(std::count(text.begin(), text.end(), LineBreak));
    for (auto rest = std::count(text.begin(), text.end(), PictureMark); rest > 0; --rest) AddPicture();
  }

  // Each may stand in a line of its own.
  void AddPicture() {
    if (picture_ == page_.pictures.size()) return;
    const Picture& picture = page_.pictures[picture_++];
    const double height = picture.heightTwips / TwipsPerPixel;
    pictures_ += height > 0 ? std::min(height, LargestPicture) : PictureOfNoSize;
  }

  double BodyOf(std::uint32_t format) const { return page_.formats[format].halfPoints * PerHalfPoint; }

  double LineHeightOf(const ParagraphFormat& format) const {
    const double natural = body_ * LineHeight;
    if (format.lineSpacingRule == LineSpacingRule::Single) return natural;
    if (format.lineSpacingRule == LineSpacingRule::Multiple)
      return natural * std::max(1.0, format.lineSpacing / 240.0);
    return std::max(natural, format.lineSpacing / TwipsPerPixel);
  }

  const Document& page_;
  std::size_t at_ = 0;
  std::size_t run_ = 0;
  std::size_t picture_ = 0;
  // Of the paragraph in hand.
  double body_ = 0;
  double width_ = 0;
  double breaks_ = 0;
  double pictures_ = 0;
};

}  // namespace

std::size_t ParagraphsToShow(const Document& page) {
  return Estimate(page).Paragraphs();
}

double EstimatedHeight(const Document& page) {
  return Estimate(page).Height();
}

}  // namespace richtext
