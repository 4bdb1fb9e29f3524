#include "store/PictureStore.h"
#include "tests/store/StoreTest.h"

namespace {

const std::string blankRecord(40, '\0');

std::string Record(const std::string& file, Flag deleted = False) {
  return Counted(file) + Raw(120, 4) + Raw(140, 4) + Raw(7, 4) + Counted("kept") + Raw(3, 4) +
         Counted("/f/oval.gif") + Raw(2, 4) + Counted("Album") + Counted("j00000.tqf") + Raw(-20, 4) +
         Raw(400, 4) + Raw(deleted, 2);
}
PagePicture Row(const std::string& file) {
  return {file, 120, 140, 7, "kept", 3, "/f/oval.gif", 2, "Album", "j00000.tqf", -20, 400, False};
}

std::string Slot(const std::string& value) {
  return value + std::string(128 - value.size(), '\xEE');
}
// The slots of one row of the older store, in their order.
std::string OldRow(const std::string& file) {
  std::string bytes;
  for (const std::string& value :
       {Counted("kept"), Counted("/f/oval.gif"), Raw(3, 4), Counted("j00000.tqf"), Counted("Album"),
        Raw(400, 4), Raw(2, 4), Counted(file), Raw(140, 4), Raw(7, 4), Raw(120, 4), Raw(-20, 4)})
    bytes += Slot(value);
  return bytes;
}
std::string OldStore(std::int32_t count, const fixture::Texts& files) {
  std::string bytes = Slot(Raw(count, 4));
  for (const std::string& file : files) bytes += OldRow(file);
  return bytes;
}

// "sound a,b,": the picture files of the rows.
std::string Outline(const store::DecodedPictures& store) {
  std::string outline = store.isDamaged ? "damaged " : "sound ";
  for (const PagePicture& row : store.rows) outline += row.PictureFile + ",";
  return outline;
}

TEST(PictureStoreTest, EachFieldHasItsPlaceAndTheRowBehindTheLastRecordIsBlank) {
  const std::string longest(65534, 'x'), longer(65535, 'y');
  const std::string bytes = Raw(4, 4) + blankRecord + Record("a") + Record(longest);
  const std::string tail = Record(longer).substr(2);  // has a length of its own kind
  const auto decoded = store::DecodePictureStore(bytes + Raw(0xFFFF, 2) + Raw(65535, 4) + tail);
  const std::vector<PagePicture> rows = {{}, Row("a"), Row(longest), Row(longer), {}};
  EXPECT_FALSE(decoded.isDamaged);
  EXPECT_EQ(decoded.rows, rows);
  EXPECT_EQ(store::EncodePictureStore(rows),
            Raw(5, 4) + bytes.substr(4) + Raw(0xFFFF, 2) + Raw(65535, 4) + tail + blankRecord);
  std::vector<PagePicture> removed = {{}, Row("a"), Row("a")};
  removed[1].Deleted = True;
  removed[2].Deleted = 1;
  EXPECT_EQ(store::EncodePictureStore(removed), Raw(2, 4) + blankRecord + Record("a", 1))
      << "only -1 is removed";
}

TEST(PictureStoreTest, BelievesNoCountOrLengthBeyondTheBytes) {
  const std::string records = blankRecord + Record("a") + Record("b");
  const std::pair<std::string, const char*> outlines[] = {
      {Raw(0, 4), "sound ,"},
      {Raw(3, 4) + records, "sound ,a,b,,"},
      {Raw(2, 4) + records, "sound ,a,b,"},
      {Raw(1, 4) + records, "damaged ,a,"},
      {Raw(4, 4) + records, "damaged ,a,b,,"},
      {Raw(3, 4) + records + "x", "damaged ,a,b,,"},
      {Raw(0x7FFFFFFF, 4) + records, "damaged ,a,b,,"},
      {Raw(-1, 4) + records, "damaged ,a,b,,"},
      {Raw(2, 4) + blankRecord + Raw(0xFFFF, 2) + Raw(0xFFFFFFFF, 4) + records, "damaged ,,"},
      {(Raw(3, 4) + records).substr(0, 3 + 40 + 4), "damaged ,,"},
      {(Raw(2, 4) + records).substr(0, 43), "damaged ,"},
      {Raw(1, 4) + Raw(39, 2), "damaged ,"}};
  for (const auto& [bytes, outline] : outlines) EXPECT_EQ(Outline(store::DecodePictureStore(bytes)), outline);
}

TEST(PictureStoreTest, TheOlderStoreLiesInSlotsAndHasNoRowMore) {
  const auto decoded = store::DecodeOldPictureStore(OldStore(1, {"", "a"}));
  EXPECT_FALSE(decoded.isDamaged);
  EXPECT_EQ(decoded.rows, (std::vector<PagePicture>{Row(""), Row("a")}));
  const std::string longest(126, 'x');
  const std::string tooLong = Slot(Raw(0, 4)) + OldRow("a").replace(std::size_t{7} * 128, 2, Raw(127, 2));
  const std::pair<std::string, std::string> outlines[] = {
      {OldStore(0, {longest}), "sound " + longest + ","},
      {OldStore(0, {"a", "left over"}), "sound a,"},
      {OldStore(2, {"a", "b"}), "damaged a,b,"},
      {OldStore(-1, {"a", "b"}), "damaged a,b,"},
      {OldStore(0x7FFFFFFF, {"a"}), "damaged a,"},
      {tooLong + OldRow("b"), "damaged ,"},
      {Slot(Raw(1, 4)) + tooLong.substr(128) + OldRow("b"), "damaged ,b,"},
      {OldStore(1, {"", "a"}).substr(0, 25 * 128 - 124), "sound ,a,"},
      {OldStore(1, {"", "a"}).substr(0, 25 * 128 - 125), "damaged ,,"},
      {OldStore(1, {"a", "b"}).substr(0, std::size_t{13} * 128), "damaged a,"},
      {"", "damaged ,"}};
  for (const auto& [bytes, outline] : outlines)
    EXPECT_EQ(Outline(store::DecodeOldPictureStore(bytes)), outline);
}

}  // namespace
