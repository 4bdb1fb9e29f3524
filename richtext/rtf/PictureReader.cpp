#include "richtext/rtf/PictureReader.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <limits>
#include <utility>

#include "richtext/document/Limits.h"
#include "richtext/document/Twips.h"
#include "richtext/rtf/Escape.h"
#include "richtext/rtf/HexDigits.h"
#include "richtext/rtf/PictureSize.h"

namespace richtext::rtf {
namespace {

constexpr std::int64_t HiMetricPerInch = 2540;

struct KindWord {
  std::string_view name;
  PictureKind kind;
};
constexpr KindWord KindWords[] = {
    {"pngblip", PictureKind::Png},
    {"jpegblip", PictureKind::Jpeg},
    {"dibitmap", PictureKind::Dib},
    {"wmetafile", PictureKind::Metafile},
    {"emfblip", PictureKind::EnhancedMetafile},
    {"macpict", PictureKind::Other},
    {"pmmetafile", PictureKind::Other},
    {"wbitmap", PictureKind::Other},
};

// What the data cannot be understood without, in the order of a header.
constexpr std::string_view DescribingWords[] = {"picw", "pich", "wbmbitspixel", "wbmplanes", "wbmwidthbytes"};

struct ExtentWord {
  std::string_view name;
  bool ofWidth;
  std::int32_t PictureExtent::*measure;
};
constexpr ExtentWord ExtentWords[] = {
    {"picw", true, &PictureExtent::own},
    {"pich", false, &PictureExtent::own},
    {"picwgoal", true, &PictureExtent::goal},
    {"pichgoal", false, &PictureExtent::goal},
    {"picscalex", true, &PictureExtent::scalePercent},
    {"picscaley", false, &PictureExtent::scalePercent},
    {"piccropl", true, &PictureExtent::cropBefore},
    {"piccropr", true, &PictureExtent::cropAfter},
    {"piccropt", false, &PictureExtent::cropBefore},
    {"piccropb", false, &PictureExtent::cropAfter},
};

template <typename Word, std::size_t Count>
const Word* Find(const Word (&words)[Count], std::string_view name) {
  const auto* found = std::find_if(std::begin(words), std::end(words),
                                   [name](const Word& word) { return word.name == name; });
  return found == std::end(words) ? nullptr : found;
}

bool IsFile(PictureKind kind) {
  return kind == PictureKind::Png || kind == PictureKind::Jpeg;
}

// The size in twips before it is scaled; 0 where only the data know it. A file tells its own better than
// \picw, in which some writers put another unit.
std::int64_t NaturalSize(const PictureExtent& extent, PictureKind kind, bool scaled) {
  if (extent.goal > 0) return extent.goal;
  const std::int64_t own = std::max(extent.own, 0);
  if (kind == PictureKind::Metafile || kind == PictureKind::EnhancedMetafile)
    return own * TwipsPerInch / HiMetricPerInch;
  return IsFile(kind) && !scaled ? 0 : own * TwipsPerInch / PixelsPerInch;
}

// Twips.
struct Shown {
  std::int32_t size = 0;  // 0 when the picture is shown in its own size
  std::int32_t cropBefore = 0;
  std::int32_t cropAfter = 0;
};

bool IsPart(std::int64_t crop, std::int64_t whole) {
  return -whole < crop && crop < whole && whole <= MaxPictureTwips;
}

// What is cropped is told of the picture before it is scaled. A scale or a crop that leaves nothing was not
// meant; one that leads far out of the picture counts for the
// size alone.
Shown ShownSide(const PictureExtent& extent, PictureKind kind) {
  const std::int64_t percent = extent.scalePercent > 0 ? extent.scalePercent : 100;
  const std::int64_t natural = std::min<std::int64_t>(NaturalSize(extent, kind, percent != 100),
                                                      std::numeric_limits<std::int32_t>::max());
  const std::int64_t scaled = natural * percent / 100;
  const std::int64_t before = extent.cropBefore * percent / 100;
  const std::int64_t after = extent.cropAfter * percent / 100;
  const std::int64_t cropped = before + after;
  if (natural <= 0) return {};
  const std::int64_t size = cropped < scaled ? scaled - cropped : scaled;
  const Shown shown{FittingPictureSize(std::max<std::int64_t>(size, 1))};
  const bool isKept =
      cropped < scaled && size <= MaxPictureTwips && IsPart(before, scaled) && IsPart(after, scaled);
  if (!isKept) return shown;
  return {shown.size, static_cast<std::int32_t>(before), static_cast<std::int32_t>(after)};
}

// A side that nobody tells follows the other one, as readers differ in what they make of it. `size` is the
// picture's, in any unit.
void FillIn(Shown& width, Shown& height, const PixelSize& size) {
  if (size.width <= 0 || size.height <= 0 || (width.size > 0) == (height.size > 0)) return;
  const bool isWide = width.size > 0;
  const Shown& told = isWide ? width : height;
  const std::int64_t whole = std::int64_t{told.size} + told.cropBefore + told.cropAfter;
  const std::int64_t from = isWide ? size.width : size.height;
  const std::int64_t to = isWide ? size.height : size.width;
  Shown& missing = isWide ? height : width;
  missing.size = FittingPictureSize(std::max<std::int64_t>((whole * to + from / 2) / from, 1));
}

}  // namespace

void PictureReader::Begin() {
  *this = PictureReader();
}

void PictureReader::TakeWord(std::string_view name, bool hasParameter, std::int32_t parameter) {
  if (const KindWord* word = Find(KindWords, name)) {
    kind_ = word->kind;
    return Describe(0, name, hasParameter, parameter);
  }
  const auto* described = std::find(std::begin(DescribingWords), std::end(DescribingWords), name);
  if (described != std::end(DescribingWords))
    Describe(static_cast<std::size_t>(described - DescribingWords) + 1, name, hasParameter, parameter);
  if (const ExtentWord* word = Find(ExtentWords, name)) {
    PictureExtent& extent =
        word->ofWidth ? width_ : height_;  // g++ 12 would write to a copy without the name
    extent.*word->measure = parameter;
  }
}

void PictureReader::Describe(std::size_t place, std::string_view name, bool hasParameter,
                             std::int32_t parameter) {
  description_[place].clear();
  if (hasParameter) {
    AppendWord(name, parameter, description_[place]);
  } else {
    AppendWord(name, description_[place]);
  }
}

void PictureReader::AppendHex(std::string_view digits) {
  const std::size_t start = bytes_.size();
  bytes_.resize(start + digits.size() / 2 + 1);
  char* to = bytes_.data() + start;
  for (const char c : digits) {
    const int digit = HexDigit(c);
    if (digit < 0) continue;
    if (highDigit_ >= 0) *to++ = static_cast<char>(highDigit_ * 16 + digit);
    highDigit_ = highDigit_ < 0 ? digit : -1;
  }
  bytes_.resize(static_cast<std::size_t>(to - bytes_.data()));
}

void PictureReader::AppendRaw(std::string_view bytes) {
  bytes_ += bytes;
}

PictureKind PictureReader::Kind() const {
  if (kind_) return *kind_;
  if (bytes_.starts_with("\x89PNG")) return PictureKind::Png;
  return bytes_.starts_with("\xFF\xD8\xFF") ? PictureKind::Jpeg : PictureKind::Other;
}

std::string PictureReader::Header() const {
  std::string header;
  for (const std::string& word : description_) header += word;
  return header;
}

std::optional<Picture> PictureReader::Take() {
  if (bytes_.empty()) return std::nullopt;
  const PictureKind kind = Kind();
  Shown width = ShownSide(width_, kind);
  Shown height = ShownSide(height_, kind);
  if (IsFile(kind)) FillIn(width, height, SizeOfFile(bytes_));
  Picture picture{kind, {}, IsFile(kind) ? std::string() : Header(), width.size, height.size};
  picture.crop = {width.cropBefore, width.cropAfter, height.cropBefore, height.cropAfter};
  picture.bytes = std::move(bytes_);
  return picture;
}

}  // namespace richtext::rtf
