#include "store/PictureStore.h"
#include "tests/store/StoreTest.h"

namespace {

using Outlines = std::vector<std::pair<std::string, std::string>>;

// "sound 0,120,": the widths of the rows.
std::string Outline(const store::DecodedPictures& store) {
  std::string outline = store.isDamaged ? "damaged " : "sound ";
  for (const PagePicture& row : store.rows) outline += std::to_string(row.PictureWidth) + ",";
  return outline;
}

TEST(PictureStoreTest, EachFieldHasItsPlaceAndTheRowBehindTheLastRecordIsBlank) {
  const std::string sample = Sample("3-pictures/tqpics.bin"), blankRecord(40, '\0');
  auto rows = store::DecodePictureStore(sample).rows;
  EXPECT_EQ(rows.at(2), (PagePicture{"C:\\Photos\\caf\xE9.jpg", 300, 200, 7, "kept", 3, "/nowhere/oval.gif",
                                     1, "My Diary", "j00000.tqf", -20, 250, False}));
  EXPECT_EQ(store::EncodePictureStore(rows), With(sample, 0, 4) + blankRecord);
  rows[0].PictureFile = std::string(65534, 'x');
  rows[1].Deleted = True;
  rows[2].Deleted = 1;  // only -1 is removed
  rows[3].PictureFile = std::string(65535, 'y');
  const std::string bytes = store::EncodePictureStore(rows);
  EXPECT_EQ(store::DecodePictureStore(bytes).rows, (std::vector<PagePicture>{rows[0], rows[2], rows[3], {}}));
}

TEST(PictureStoreTest, BelievesNoCountOrLengthBeyondTheBytes) {
  const std::string sample = Sample("3-pictures/tqpics.bin");
  const Outlines outlines = {{sample, "sound 0,120,300,0,"},
                             {sample + "x", "damaged 0,120,300,0,"},
                             {sample.substr(0, 44 + 40), "damaged 0,0,"},
                             {sample.substr(0, 43), "damaged 0,"},
                             {With(sample, 44, 0xFFFFFFFF), "damaged 0,0,"},
                             {With(sample, 0, 1), "damaged 0,120,"},
                             {With(sample, 0, 2), "sound 0,120,300,"},
                             {std::string(4, '\0'), "sound 0,"}};
  for (const auto& [bytes, outline] : outlines) EXPECT_EQ(Outline(store::DecodePictureStore(bytes)), outline);
  for (const std::uint32_t count : {4u, 0x7FFFFFFFu, 0xFFFFFFFFu})
    EXPECT_EQ(Outline(store::DecodePictureStore(With(sample, 0, count))), "damaged 0,120,300,0,");
}

TEST(PictureStoreTest, TheOlderStoreLiesInSlotsAndHasNoRowMore) {
  const std::string sample = Sample("4-older-pictures/jpics.bin");
  EXPECT_EQ(store::DecodeOldPictureStore(sample).rows.at(1),
            (PagePicture{"/usr/share/pixmaps/debian-logo.png", 110, 100, 5, "old", 0, "", 1, "My Diary",
                         "j00000.tqf", 64, 20, False}));
  // Twelve slots of 128 bytes a row, behind the one of the count; the picture's file is in the eighth.
  const auto withFileOf = [&](std::size_t row, std::uint32_t length) {
    return With(sample, (1 + 12 * row + 7) * 128, length);
  };
  const Outlines outlines = {{sample, "sound 0,110,"},
                             {With(sample, 0, 0), "sound 0,"},
                             {With(sample, 0, 2), "damaged 0,110,"},
                             {With(sample, 0, 0xFFFFFFFF), "damaged 0,110,"},
                             {With(sample, 0, 0x7FFFFFFF), "damaged 0,110,"},
                             {withFileOf(0, 126), "sound 0,110,"},
                             {withFileOf(0, 127), "damaged 0,110,"},
                             {withFileOf(1, 127), "damaged 0,0,"},
                             {sample.substr(0, 3076), "sound 0,110,"},
                             {sample.substr(0, 3075), "damaged 0,0,"},
                             {sample.substr(0, 1664), "damaged 0,"},
                             {"", "damaged 0,"}};
  for (const auto& [bytes, outline] : outlines)
    EXPECT_EQ(Outline(store::DecodeOldPictureStore(bytes)), outline);
}

}  // namespace
