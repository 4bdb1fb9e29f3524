// The bitmaps that a metafile paints, and where. A metafile is a list of drawing calls; the ones that a
// clipboard writes for a pasted picture paint one bitmap and nothing else.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace richtext {

// A negative extent runs the other way: the picture is mirrored.
struct Area {
  std::int64_t left = 0;
  std::int64_t top = 0;
  std::int64_t width = 0;
  std::int64_t height = 0;
};

enum class Mixing : std::uint8_t { Copy, And, Xor, Or };

struct Blit {
  std::string_view info;  // a bitmap's header and palette, and its pixels as well where `bits` is empty
  std::string_view bits;
  Mixing mixing = Mixing::Copy;
  bool sourceFromBottom = false;  // source.top counts from the last row up
  Area source;                    // pixels
  Area target;                    // the metafile's own units
};

struct Scene {
  std::optional<Area> window;  // what of the drawing is shown, in the metafile's own units
  std::vector<Blit> blits;     // in order; views into the metafile
};

// Both read as far as the records are sound, and give an empty scene for what is no metafile.
Scene ReadMetafile(std::string_view metafile);          // WMF, with or without a placeable header
Scene ReadEnhancedMetafile(std::string_view metafile);  // EMF

// The mixing of a ternary raster operation; what is none of these counts as a copy.
Mixing MixingOf(std::uint32_t operation);

}  // namespace richtext
