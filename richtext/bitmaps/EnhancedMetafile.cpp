// Enhanced metafiles: records of 32-bit numbers; a bitmap's header and pixels lie anywhere in its record.
#include <algorithm>
#include <iterator>

#include "richtext/bitmaps/LittleEndian.h"
#include "richtext/bitmaps/MetafileBlits.h"

namespace richtext {
namespace {

constexpr std::uint32_t Signature = 0x464D4520;  // " EMF"
constexpr std::size_t SignatureAt = 40;
constexpr std::size_t SmallestRecord = 8;  // type, size

enum RecordType : std::uint32_t { Header = 1, EndOfFile = 14 };

// Where the parameters of a bitmap's record lie. Their order is the same: horizontal before vertical; four
// numbers tell where header and pixels lie.
struct BlitLayout {
  std::uint32_t type;
  std::size_t operation, usage, sourceSize, sourcePlace, targetSize, targetPlace, bitmap;
  bool sourceFromBottom;
};
constexpr BlitLayout Layouts[] = {
    {76, 40, 80, 32, 44, 32, 24, 84, false},   // BitBlt
    {77, 40, 80, 100, 44, 32, 24, 84, false},  // StretchBlt
    {80, 0, 64, 40, 32, 40, 24, 48, true},     // SetDIBitsToDevice
    {81, 68, 64, 40, 32, 72, 24, 48, true},    // StretchDIBits
    {114, 0, 80, 100, 44, 32, 24, 84, false},  // AlphaBlend
};

Area AreaAt(std::string_view record, std::size_t place, std::size_t size) {
  return {SignedAt32(record, place), SignedAt32(record, place + 4), SignedAt32(record, size),
          SignedAt32(record, size + 4)};
}

// The bytes told by an offset and a length at `at`.
std::string_view PartAt(std::string_view record, std::size_t at) {
  return BytesFrom(record, UnsignedAt32(record, at)).substr(0, UnsignedAt32(record, at + 4));
}

void TakeBlit(std::string_view record, const BlitLayout& layout, Scene& scene) {
  Blit blit;
  blit.info = PartAt(record, layout.bitmap);
  blit.bits = PartAt(record, layout.bitmap + 8);
  if (UnsignedAt32(record, layout.usage) != 0 || blit.info.empty() || blit.bits.empty()) return;
  if (layout.operation != 0) blit.mixing = MixingOf(UnsignedAt32(record, layout.operation));
  blit.sourceFromBottom = layout.sourceFromBottom;
  blit.source = AreaAt(record, layout.sourcePlace, layout.sourceSize);
  blit.target = AreaAt(record, layout.targetPlace, layout.targetSize);
  scene.blits.push_back(blit);
}

}  // namespace

Scene ReadEnhancedMetafile(std::string_view metafile) {
  Scene scene;
  if (UnsignedAt32(metafile, 0) != Header || UnsignedAt32(metafile, SignatureAt) != Signature) return scene;
  while (true) {
    const std::uint32_t type = UnsignedAt32(metafile, 0);
    const std::size_t size = UnsignedAt32(metafile, 4);
    if (size < SmallestRecord || size > metafile.size() || type == EndOfFile) return scene;
    const auto* layout = std::find_if(std::begin(Layouts), std::end(Layouts),
                                      [type](const BlitLayout& each) { return each.type == type; });
    if (layout != std::end(Layouts)) TakeBlit(metafile.substr(0, size), *layout, scene);
    metafile = BytesFrom(metafile, size);
  }
}

}  // namespace richtext
