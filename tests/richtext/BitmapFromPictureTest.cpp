
#include "platform/files/InputFile.h"
#include "richtext/bitmaps/BitmapFromPicture.h"
#include "tests/richtext/RtfDump.h"

using namespace richtext;

namespace {

// One of the small pictures that the fuzz target begins with: a byte for its kind before its own bytes.
Picture Sample(const std::string& name) {
  const std::string file = platform::ReadFile(fixture::PathOfSample("../../fuzz/seeds/picture/" + name));
  return {static_cast<PictureKind>(file.at(0)), file.substr(1), {}, 0, 0};
}

struct Patch {
  std::size_t place;
  std::uint32_t number;  // of 32 bits, the lowest byte first
};
std::string With(std::string bytes, const std::vector<Patch>& patches) {
  for (const auto& [place, number] : patches)
    for (std::size_t i = 0; i < 4; ++i) bytes.at(place + i) = static_cast<char>(number >> (8 * i));
  return bytes;
}

// Rows of colours, '-' for what is transparent; "none" for no bitmap.
std::string Shown(const Picture& picture) {
  const auto bitmap = BitmapFromPicture(picture);
  if (!bitmap) return "none";
  std::string dump;
  for (std::size_t i = 0; i < bitmap->argb.size(); ++i) {
    const std::uint32_t pixel = bitmap->argb[i];
    const bool isOpaque = pixel >> 24 == 255;
    char color[16];
    std::snprintf(color, sizeof color, isOpaque ? "%06x" : "%08x", isOpaque ? pixel & 0xFFFFFF : pixel);
    if (i != 0) dump += i % static_cast<std::size_t>(bitmap->width) == 0 ? '|' : ' ';
    dump += pixel == 0 ? "-" : color;
  }
  return dump;
}

const std::string FourColors = "ff0000 00ff00|0000ff ffffff";

TEST(BitmapFromPicture, ReadsEveryKind) {
  for (const auto& [name, dump] : ExamplesOf("pictures.txt")) EXPECT_EQ(Shown(Sample(name)), dump) << name;
}

// Where numbers lie in the pictures above.
constexpr std::size_t HeaderSize = 0, Width = 4, Height = 8, Depth = 14, Packing = 16, Colors = 32;
constexpr std::size_t Window = 42, Blit = 46, Source = 56, Target = 64, Dib = 72;

TEST(BitmapFromPicture, TrustsNoSize) {
  const std::uint32_t most = 0x7FFFFFFF;
  const std::pair<const char*, std::vector<Patch>> lies[] = {
      {"dib24", {{HeaderSize, 0xFFFFFFFF}}},
      {"dib24", {{Width, most}}},
      {"dib24", {{Width, 0}}},
      {"dib24", {{Width, 0xFFFFFFFF}}},
      {"dib24", {{Height, most}}},
      {"dib24", {{Height, 0}}},
      {"dib24", {{Height, 0x80000000}}},
      {"dib24", {{Width, 65536}, {Height, 65536}}},
      {"dib24", {{Depth, 0}}},
      {"dib24", {{Depth, 2}, {Colors, 1}}},
      {"dib24", {{Packing, 4}}},
      {"dib24", {{Colors, most}}},
      {"runs8", {{Colors, 0}}},
      {"runs8", {{Height, 0xFFFFFFFE}}},
      {"runs8", {{Width, 60000}}},
      {"wmf-pasted", {{Source, 0x75307530}}},
      {"wmf-pasted", {{Target, 40 << 16}}},
      {"wmf-pasted", {{Blit, 0}}},
  };
  for (const auto& [name, patches] : lies) {
    Picture picture = Sample(name);
    picture.bytes = With(picture.bytes, patches);
    EXPECT_EQ(Shown(picture), "none") << name << " with another number at " << patches[0].place;
  }
}

TEST(BitmapFromPicture, ShowsNoMorePaperThanItsBitmapIsWorth) {
  Picture picture = Sample("wmf-pasted");
  picture.bytes = With(picture.bytes, {{Window, 0x7FFF7FFF}});
  EXPECT_EQ(Shown(picture), FourColors);
}

TEST(BitmapFromPicture, GivesNothingForWhatIsCutOff) {
  // The filler of a bitmap's last row may be missing, and so may a metafile's last record.
  for (const auto& [name, spare] : {std::pair{"dib24", 2U}, {"wmf-pasted", 6U}}) {
    Picture picture = Sample(name);
    for (std::size_t left = picture.bytes.size(), whole = left - spare; left-- > 0;) {
      picture.bytes.pop_back();
      EXPECT_EQ(Shown(picture), left < whole ? "none" : FourColors) << name << " cut to " << left;
    }
  }
}

// Many small bitmaps that are each painted over a large picture: minutes, where each costs the whole of it.
TEST(BitmapFromPicture, TakesTimeByThePicturesBytesOnly) {
  const std::uint32_t small = 1 | 1 << 16, large = 100 | 100 << 16, whole = 600 | 600 << 16;
  const std::string sample =
      With(Sample("wmf-part").bytes, {{Window, whole}, {Target, whole}, {Source, small}});
  const std::string dot = sample.substr(Blit, 82), end = sample.substr(Blit + 82);
  const std::string ground = With(
      sample, {{Blit, 15033}, {Source, large}, {Target, large}, {Dib + Width, 100}, {Dib + Height, 100}});
  std::string bytes = ground.substr(0, Dib + 40) + std::string(30000, 'x');
  for (int i = 0; i < 20'000; ++i) bytes += dot;
  const auto bitmap = BitmapFromPicture({PictureKind::Metafile, bytes + end, {}, 0, 0});
  EXPECT_EQ(bitmap.value().argb.back(), 0xFF00FF00U);
}

}  // namespace
