// Windows metafiles: a header of 18 bytes, then records of 16-bit words, their parameters in reverse order.
#include <algorithm>
#include <iterator>

#include "richtext/bitmaps/LittleEndian.h"
#include "richtext/bitmaps/MetafileBlits.h"

namespace richtext {
namespace {

constexpr std::uint32_t PlaceableKey = 0x9AC6CDD7;
constexpr std::size_t PlaceableSize = 22;
constexpr std::size_t HeaderSize = 18;
constexpr std::size_t SmallestRecord = 6;  // size in words (4), function (2)

enum Function : std::uint32_t { EndOfFile = 0, SetWindowOrigin = 0x020B, SetWindowExtent = 0x020C };

// Where the parameters of a bitmap's record lie. 0: the record has no such one.
struct BlitLayout {
  std::uint32_t function;  // its low byte
  std::size_t operation, usage, sourceSize, sourcePlace, targetSize, targetPlace, dib;
  bool sourceFromBottom;
};
constexpr BlitLayout Layouts[] = {
    {0x33, 0, 6, 16, 12, 16, 20, 24, true},   // SetDibToDev
    {0x40, 6, 0, 14, 10, 14, 18, 22, false},  // DibBitBlt
    {0x41, 6, 0, 10, 14, 18, 22, 26, false},  // DibStretchBlt
    {0x43, 6, 10, 12, 16, 20, 24, 28, true},  // StretchDib
};

// Two points, each with its vertical part first.
Area AreaAt(std::string_view record, std::size_t place, std::size_t size) {
  return {SignedAt16(record, place + 2), SignedAt16(record, place), SignedAt16(record, size + 2),
          SignedAt16(record, size)};
}

// The high byte tells the number of parameters; a record no longer than these paints without a bitmap.
bool HasBitmap(std::string_view record, std::uint32_t function) {
  return record.size() > std::size_t{2} * ((function >> 8) + 3);
}

class Walk {
 public:
  explicit Walk(std::string_view metafile) : rest_(metafile) {}

  Scene Read() {
    TakePlaceableHeader();
    const std::uint32_t type = UnsignedAt16(rest_, 0);
    const bool isMetafile = (type == 1 || type == 2) && UnsignedAt16(rest_, 2) * std::size_t{2} == HeaderSize;
    if (!isMetafile) return {};
    rest_ = BytesFrom(rest_, HeaderSize);
    while (TakeRecord()) {
    }
    return std::move(scene_);
  }

 private:
  void TakePlaceableHeader() {
    if (UnsignedAt32(rest_, 0) != PlaceableKey) return;
    const std::int32_t left = SignedAt16(rest_, 6);
    const std::int32_t top = SignedAt16(rest_, 8);
    scene_.window = Area{left, top, SignedAt16(rest_, 10) - left, SignedAt16(rest_, 12) - top};
    rest_ = BytesFrom(rest_, PlaceableSize);
  }

  // A record shorter than its own head would never end.
  bool TakeRecord() {
    const std::uint64_t size = std::uint64_t{UnsignedAt32(rest_, 0)} * 2;
    if (size < SmallestRecord || size > rest_.size()) return false;
    const std::string_view record = rest_.substr(0, size);
    rest_ = BytesFrom(rest_, size);
    const std::uint32_t function = UnsignedAt16(record, 4);
    if (function == EndOfFile) return false;
    Take(record, function);
    return true;
  }

  void Take(std::string_view record, std::uint32_t function) {
    if (function == SetWindowOrigin || function == SetWindowExtent) return TakeWindow(record, function);
    const auto* layout =
        std::find_if(std::begin(Layouts), std::end(Layouts),
                     [function](const BlitLayout& each) { return each.function == (function & 0xFF); });
    if (layout != std::end(Layouts) && HasBitmap(record, function)) TakeBlit(record, *layout);
  }

  // The window in force at the first bitmap holds for all.
  void TakeWindow(std::string_view record, std::uint32_t function) {
    if (!scene_.blits.empty()) return;
    if (!scene_.window) scene_.window = Area();
    (function == SetWindowOrigin ? scene_.window->left : scene_.window->width) = SignedAt16(record, 8);
    (function == SetWindowOrigin ? scene_.window->top : scene_.window->height) = SignedAt16(record, 6);
  }

  // Colours by number of a palette outside the bitmap (a usage other than 0) say nothing here.
  void TakeBlit(std::string_view record, const BlitLayout& layout) {
    if (layout.usage != 0 && UnsignedAt16(record, layout.usage) != 0) return;
    Blit blit;
    blit.info = BytesFrom(record, layout.dib);
    if (layout.operation != 0) blit.mixing = MixingOf(UnsignedAt32(record, layout.operation));
    blit.sourceFromBottom = layout.sourceFromBottom;
    blit.source = AreaAt(record, layout.sourcePlace, layout.sourceSize);
    blit.target = AreaAt(record, layout.targetPlace, layout.targetSize);
    scene_.blits.push_back(blit);
  }

  std::string_view rest_;
  Scene scene_;
};

}  // namespace

Mixing MixingOf(std::uint32_t operation) {
  constexpr std::uint32_t SourceAnd = 0x008800C6;
  constexpr std::uint32_t SourceInvert = 0x00660046;
  constexpr std::uint32_t SourcePaint = 0x00EE0086;
  if (operation == SourceAnd) return Mixing::And;
  if (operation == SourceInvert) return Mixing::Xor;
  return operation == SourcePaint ? Mixing::Or : Mixing::Copy;
}

Scene ReadMetafile(std::string_view metafile) {
  return Walk(metafile).Read();
}

}  // namespace richtext
