#include <cstdio>
#include <ctime>
#include <gtest/gtest.h>

#include "richtext/BitmapFromPicture.h"

using namespace richtext;

namespace {

using Numbers = std::vector<std::int64_t>;

std::string Little(const Numbers& numbers, std::size_t size) {
  std::string bytes;
  for (const std::int64_t number : numbers)
    for (std::size_t i = 0; i < size; ++i) bytes += static_cast<char>(number >> (8 * i));
  return bytes;
}
const auto Bytes = [](const Numbers& numbers) { return Little(numbers, 1); };
const auto Words = [](const Numbers& numbers) { return Little(numbers, 2); };
const auto Longs = [](const Numbers& numbers) { return Little(numbers, 4); };

struct Shape {
  std::int64_t width, height, depth;
  std::int64_t packing = 0;
  std::int64_t colors = 0;
};

// A bitmap of the usual header; `rest` is palette and pixels.
std::string Dib(const Shape& shape, const std::string& rest) {
  return Longs({40, shape.width, shape.height}) + Words({1, shape.depth}) +
         Longs({shape.packing, 0, 0, 0, shape.colors, 0}) + rest;
}

const std::string RedAndBlue = Longs({0xFF0000, 0x0000FF});
// Two by two: red and green above blue and white.
const std::string FourColors =
    Dib({2, 2, 24}, Bytes({255, 0, 0, 255, 255, 255, 0, 0, 0, 0, 255, 0, 255, 0, 0, 0}));
const std::string FourColorsDump = "ff0000 00ff00|0000ff ffffff";

// Rows of colours, '-' for what is transparent; "none" for no bitmap.
std::string Dump(const std::optional<Bitmap>& bitmap) {
  if (!bitmap) return "none";
  std::string dump;
  for (std::size_t i = 0; i < bitmap->argb.size(); ++i) {
    const std::uint32_t pixel = bitmap->argb[i];
    char color[16];
    std::snprintf(color, sizeof color, pixel >> 24 == 255 ? "%06x" : "%08x",
                  pixel & (pixel >> 24 == 255 ? 0xFFFFFF : ~0U));
    if (i != 0) dump += i % static_cast<std::size_t>(bitmap->width) == 0 ? '|' : ' ';
    dump += pixel == 0 ? "-" : color;
  }
  return dump;
}

std::string Shown(PictureKind kind, const std::string& bytes) {
  return Dump(BitmapFromPicture({kind, bytes, {}, 0, 0}));
}
std::string Shown(const std::string& dib) {
  return Shown(PictureKind::Dib, dib);
}

std::string Record(std::int64_t function, const std::string& parameters) {
  return Longs({static_cast<std::int64_t>(parameters.size() + 6) / 2}) + Words({function}) + parameters;
}

// A metafile with a window from 0, 0; what came before the extent in a record comes after it here.
std::string Wmf(std::int64_t width, std::int64_t height, const std::string& records) {
  const std::string all = Record(0x0103, Words({8})) + Record(0x020B, Words({0, 0})) +
                          Record(0x020C, Words({height, width})) + records + Record(0, "");
  return Words({1, 9, 0x300}) + Longs({static_cast<std::int64_t>(9 + all.size() / 2)}) + Words({0}) +
         Longs({0}) + Words({0}) + all;
}

enum Operation : std::int64_t { Copy = 0xCC0020, And = 0x8800C6, Invert = 0x660046 };

// Source and target as height, width, top, left.
std::string DibStretchBlt(Operation operation, const Numbers& source, const Numbers& target,
                          const std::string& dib) {
  return Record(0x0B41, Longs({operation}) + Words(source) + Words(target) + dib);
}
std::string StretchDib(const Numbers& source, const Numbers& target, const std::string& dib) {
  return Record(0x0F43, Longs({Copy}) + Words({0}) + Words(source) + Words(target) + dib);
}
std::string ShownWmf(std::int64_t width, std::int64_t height, const std::string& records) {
  return Shown(PictureKind::Metafile, Wmf(width, height, records));
}

const std::string Pasted = DibStretchBlt(Copy, {2, 2, 0, 0}, {60, 40, 0, 0}, FourColors);

TEST(BitmapFromPicture, ReadsEveryDepth) {
  EXPECT_EQ(Shown(Dib({3, 2, 1}, RedAndBlue + Bytes({0x40, 0, 0, 0, 0xA0, 0, 0, 0}))),
            "0000ff ff0000 0000ff|ff0000 0000ff ff0000");
  EXPECT_EQ(Shown(Dib({3, 1, 4, 0, 2}, RedAndBlue + Bytes({0x01, 0x20, 0, 0}))), "ff0000 0000ff 000000");
  EXPECT_EQ(Shown(Dib({2, 1, 8, 0, 2}, RedAndBlue + Bytes({1, 0, 9, 9}))), "0000ff ff0000");
  EXPECT_EQ(Shown(Dib({2, 1, 16}, Words({0x7C00, 0x801F}))), "ff0000 0000ff");
  EXPECT_EQ(Shown(Dib({2, 1, 16, 3}, Longs({0xF800, 0x07E0, 0x001F}) + Words({0xF800, 0x0400}))),
            "ff0000 008200");
  EXPECT_EQ(Shown(FourColors), FourColorsDump);
  EXPECT_EQ(Shown(Dib({2, 1, 32}, Longs({0x00123456, 0x80654321}))), "123456 654321");
  EXPECT_EQ(Shown(Dib({1, 1, 32, 3}, Longs({0xFF, 0xFF00, 0xFF0000, 0x123456}))), "563412");
}

TEST(BitmapFromPicture, ReadsTheOtherHeaders) {
  EXPECT_EQ(Shown(Dib({2, -2, 24}, FourColors.substr(40))), "0000ff ffffff|ff0000 00ff00");
  EXPECT_EQ(Shown(Longs({12}) + Words({2, 2, 1, 24}) + FourColors.substr(40)), FourColorsDump);
  EXPECT_EQ(Shown(Longs({12}) + Words({2, 1, 1, 1}) + Bytes({0, 0, 255, 255, 0, 0, 0x40, 0, 0, 0})),
            "ff0000 0000ff");
  const auto withAlpha = [](const std::string& pixels) {
    const std::string start = Dib({2, 1, 32, 3}, Longs({0xFF0000, 0xFF00, 0xFF, 0xFF000000}));
    return Longs({108}) + start.substr(4) + std::string(52, '\0') + pixels;
  };
  EXPECT_EQ(Shown(withAlpha(Longs({0x80123456, 0xFF654321}))), "80123456 654321");
  EXPECT_EQ(Shown(withAlpha(Longs({0x00123456, 0x00654321}))), "123456 654321");
  // A palette beside full colours is passed over.
  EXPECT_EQ(Shown(Dib({2, 2, 24, 0, 2}, RedAndBlue + FourColors.substr(40))), FourColorsDump);
}

TEST(BitmapFromPicture, UnpacksRuns) {
  const Shape runs8{4, 2, 8, 1, 2}, runs4{5, 1, 4, 2, 2};
  const std::tuple<Shape, Numbers, std::string> cases[] = {
      {runs8,
       {4, 0, 0, 0, 0, 3, 1, 0, 1, 0, 1, 1, 0, 1},
       "0000ff ff0000 0000ff 0000ff|ff0000 ff0000 ff0000 ff0000"},
      {runs8, {0, 2, 1, 1, 9, 1, 0, 0, 9, 1}, "- 0000ff 0000ff 0000ff|- - - -"},
      {runs8, {0, 200, 1}, "- - - -|0000ff ff0000 ff0000 ff0000"},
      {runs4, {3, 0x01, 2, 0x11}, "ff0000 0000ff ff0000 0000ff 0000ff"},
      {runs4, {0, 5, 0x10, 0x10, 0x10, 0, 0, 1}, "0000ff ff0000 0000ff ff0000 0000ff"},
  };
  for (const auto& [shape, packed, dump] : cases)
    EXPECT_EQ(Shown(Dib(shape, RedAndBlue + Bytes(packed))), dump);
}

TEST(BitmapFromPicture, FindsTheBitmapOfAPastedPicture) {
  const std::string placeable = Longs({0x9AC6CDD7}) + Words({0, 0, 0, 40, 60, 96, 0, 0, 0});
  const std::string metafiles[] = {
      Wmf(40, 60, Pasted),
      Wmf(40, 60, StretchDib({2, 2, 0, 0}, {60, 40, 0, 0}, FourColors)),
      placeable + Wmf(40, 60, Pasted),
      Wmf(2, 2, Record(0x0940, Longs({Copy}) + Words({0, 0, 2, 2, 0, 0}) + FourColors)),
      Wmf(2, 2, Record(0x0D33, Words({0, 2, 0, 0, 0, 2, 2, 0, 0}) + FourColors)),
  };
  for (const std::string& metafile : metafiles)
    EXPECT_EQ(Shown(PictureKind::Metafile, metafile), FourColorsDump);
  EXPECT_EQ(Shown(PictureKind::EnhancedMetafile, metafiles[0]), FourColorsDump)
      << "what it is, not is called";
}

TEST(BitmapFromPicture, TurnsAndCutsAsTheMetafileSays) {
  // A window that counts upwards turns the picture once, a negative extent turns it back.
  EXPECT_EQ(ShownWmf(40, -60, DibStretchBlt(Copy, {2, 2, 0, 0}, {-60, 40, 0, 0}, FourColors)),
            FourColorsDump);
  EXPECT_EQ(ShownWmf(40, 60, DibStretchBlt(Copy, {2, 2, 0, 0}, {-60, 40, 60, 0}, FourColors)),
            "0000ff ffffff|ff0000 00ff00");
  EXPECT_EQ(ShownWmf(40, 60, DibStretchBlt(Copy, {2, -2, 0, 2}, {60, 40, 0, 0}, FourColors)),
            "00ff00 ff0000|ffffff 0000ff");
  EXPECT_EQ(ShownWmf(9, 9, DibStretchBlt(Copy, {1, 1, 0, 1}, {9, 9, 0, 0}, FourColors)), "00ff00");
  EXPECT_EQ(ShownWmf(9, 9, StretchDib({1, 1, 0, 1}, {9, 9, 0, 0}, FourColors)), "ffffff");
  // Two halves beside each other, and a margin.
  EXPECT_EQ(ShownWmf(4, 1,
                     DibStretchBlt(Copy, {1, 1, 0, 0}, {1, 1, 0, 0}, FourColors) +
                         DibStretchBlt(Copy, {1, 1, 0, 1}, {1, 2, 0, 1}, FourColors)),
            "ff0000 00ff00 00ff00 -");
}

TEST(BitmapFromPicture, KeepsTheSurroundingsOfAnIconClear) {
  const std::string mask = Dib({2, 1, 1}, Longs({0, 0xFFFFFF}) + Bytes({0x40, 0, 0, 0}));
  const std::string image = Dib({2, 1, 24}, Bytes({1, 2, 3, 0, 0, 0, 0, 0}));
  EXPECT_EQ(ShownWmf(2, 2,
                     DibStretchBlt(And, {1, 2, 0, 0}, {1, 2, 0, 0}, mask) +
                         DibStretchBlt(Invert, {1, 2, 0, 0}, {1, 2, 0, 0}, image)),
            "030201 -|- -");
}

TEST(BitmapFromPicture, FindsTheBitmapOfAnEnhancedMetafile) {
  const std::string head = Longs({1, 88, 0, 0, 0, 0, 0, 0, 0, 0, 0x464D4520}) + std::string(44, '\0');
  const std::string blit =
      Longs({81, 80 + 56, 0, 0, 0, 0, 5, 5, 0, 0, 2, 2, 80, 40, 120, 16, 0, Copy, 30, 30}) + FourColors;
  const std::string end = Longs({14, 20, 0, 0, 20});
  EXPECT_EQ(Shown(PictureKind::EnhancedMetafile, head + blit + end), FourColorsDump);
  EXPECT_EQ(Shown(PictureKind::EnhancedMetafile, head + Longs({1, 0}) + blit), "none");
  EXPECT_EQ(Shown(PictureKind::EnhancedMetafile, head + end), "none");
}

TEST(BitmapFromPicture, TrustsNoSize) {
  const std::int64_t most = 0x7FFFFFFF;
  const std::string some(64, '\1');
  const Shape shapes[] = {{most, 1, 1},    {1, most, 1},  {most, most, 32}, {65536, 65536, 24},
                          {0, 1, 24},      {1, 0, 24},    {-1, 1, 24},      {1, -most - 1, 1},
                          {1, 1, 2},       {1, 1, 0},     {1, 1, 8, 0, -1}, {1, 1, 24, 0, most},
                          {4, 4, 8, 1, 0}, {1, 1, 24, 4}, {1, -1, 8, 1, 2}, {60000, 1000, 8, 1, 2}};
  for (const Shape& shape : shapes)
    EXPECT_EQ(Shown(Dib(shape, some)), "none") << shape.width << 'x' << shape.height;
  EXPECT_EQ(Shown(Longs({-1}) + some), "none");
  // A far window, a source beyond the bitmap, no size at all, a record without an end and one without a
  // bitmap.
  const std::pair<std::string, std::string> metafiles[] = {
      {Wmf(32767, 32767, DibStretchBlt(Copy, {2, 2, 0, 0}, {1, 1, 0, 0}, FourColors)), FourColorsDump},
      {Wmf(9, 9, DibStretchBlt(Copy, {30000, 30000, 0, 0}, {9, 9, 0, 0}, FourColors)), "none"},
      {Wmf(9, 9, DibStretchBlt(Copy, {2, 2, 0, 0}, {0, 9, 0, 0}, FourColors)), "none"},
      {Wmf(2, 2, Longs({0, 0, 0, 0}) + Pasted), "none"},
      {Wmf(2, 2, Record(0x0B41, Longs({Copy}) + Words({2, 2, 0, 0, 0, 2, 2, 0, 0}))), "none"},
  };
  for (const auto& [metafile, dump] : metafiles) EXPECT_EQ(Shown(PictureKind::Metafile, metafile), dump);
}

TEST(BitmapFromPicture, GivesNothingForWhatIsCutOff) {
  for (std::size_t length = 0; length <= FourColors.size(); ++length)  // the last row's filler may be missing
    EXPECT_EQ(Shown(FourColors.substr(0, length)), length < FourColors.size() - 2 ? "none" : FourColorsDump);
  const std::string metafile = Wmf(40, 60, Pasted);
  EXPECT_EQ(Shown(PictureKind::Metafile, metafile.substr(0, metafile.size() - 7)), "none");
  EXPECT_EQ(Shown(PictureKind::Metafile, metafile.substr(0, metafile.size() - 6)), FourColorsDump)
      << "the last record only says that it is the last";
}

// Many small bitmaps that are each painted over a large picture.
TEST(BitmapFromPicture, TakesTimeByThePicturesBytesOnly) {
  const std::string dot = DibStretchBlt(Copy, {1, 1, 0, 0}, {600, 600, 0, 0}, Dib({1, 1, 24}, "\1\2\3\4"));
  std::string records =
      DibStretchBlt(Copy, {100, 100, 0, 0}, {100, 100, 0, 0}, Dib({100, 100, 24}, std::string(30000, 'x')));
  for (int i = 0; i < 20'000; ++i) records += dot;
  const std::clock_t start = std::clock();
  const auto bitmap = BitmapFromPicture({PictureKind::Metafile, Wmf(600, 600, records), {}, 0, 0});
  EXPECT_EQ(bitmap.value().argb.back(), 0xFF030201U);
  EXPECT_LT(std::clock() - start, 6 * CLOCKS_PER_SEC) << "most of it is the sanitizers'";
}

}  // namespace
