#include "store/PictureStore.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "store/Bytes.h"

namespace store {
namespace {

// Seven numbers of 32 bits, five empty strings and the flag.
constexpr std::size_t smallestRecord = 7 * 4 + 5 * 2 + 2;
static_assert(smallestRecord == 40);

constexpr std::size_t slotSize = 128;
constexpr std::size_t slotsOfRow = 12;

constexpr std::uint64_t mostRows = std::uint64_t{1} << 31;  // what a count can tell, and one more

PagePicture TakeRecord(Reader& reader) {
  PagePicture row;
  row.PictureFile = reader.TakeLongString("picture file");
  row.PictureWidth = reader.TakeNumber<std::int32_t>("picture width");
  row.PictureHeight = reader.TakeNumber<std::int32_t>("picture height");
  row.Spare1 = reader.TakeNumber<std::int32_t>("spare number");
  row.Spare2 = reader.TakeLongString("spare text");
  row.FrameIndex = reader.TakeNumber<std::int32_t>("frame index");
  row.FrameFile = reader.TakeLongString("frame file");
  row.PageNumber = reader.TakeNumber<std::int32_t>("page number");
  row.JournalName = reader.TakeLongString("journal name");
  row.JournalFile = reader.TakeLongString("journal file");
  row.Top = reader.TakeNumber<std::int32_t>("top");
  row.Left = reader.TakeNumber<std::int32_t>("left");
  row.Deleted = reader.TakeNumber<Flag>("removed flag");
  return row;
}

void AppendRecord(std::string& bytes, const PagePicture& row) {
  AppendLongString(bytes, row.PictureFile);
  AppendNumber(bytes, row.PictureWidth);
  AppendNumber(bytes, row.PictureHeight);
  AppendNumber(bytes, row.Spare1);
  AppendLongString(bytes, row.Spare2);
  AppendNumber(bytes, row.FrameIndex);
  AppendLongString(bytes, row.FrameFile);
  AppendNumber(bytes, row.PageNumber);
  AppendLongString(bytes, row.JournalName);
  AppendLongString(bytes, row.JournalFile);
  AppendNumber(bytes, row.Top);
  AppendNumber(bytes, row.Left);
  AppendNumber(bytes, row.Deleted);
}

// Takes records until there are `most` of them or the bytes are at their end; throws MissingField at one that
// is not whole.
void TakeRecords(Reader& reader, std::uint64_t most, std::vector<PagePicture>& rows) {
  rows.reserve(static_cast<std::size_t>(std::min<std::uint64_t>(most, reader.left() / smallestRecord + 1)));
  while (rows.size() < most && reader.left() > 0) rows.push_back(TakeRecord(reader));
}

// A count below 0 tells nothing: every record that is there counts.
void TakeStore(Reader& reader, DecodedPictures& store) {
  const auto count = reader.TakeNumber<std::int32_t>("number of records");
  const std::uint64_t most = count < 0 ? mostRows : std::uint64_t(count) + 1;
  TakeRecords(reader, most, store.rows);
  store.isDamaged = count < 0 || store.rows.size() + 1 < most || reader.left() > 0;
  if (store.rows.size() < most) store.rows.emplace_back();
}

// The value of slot `number`; its filler is not looked at, and the last one may lack its own.
Reader Slot(std::string_view bytes, std::size_t number) {
  const std::size_t start = number * slotSize;
  return Reader(start < bytes.size() ? bytes.substr(start, slotSize) : std::string_view());
}

std::int32_t NumberIn(Reader slot, const char* field) {
  return slot.TakeNumber<std::int32_t>(field);
}

PagePicture OldRow(std::string_view bytes, std::size_t row) {
  const auto slot = [&](std::size_t value) { return Slot(bytes, 1 + slotsOfRow * row + value); };
  PagePicture picture;
  picture.Spare2 = slot(0).TakeCountedString("spare text");
  picture.FrameFile = slot(1).TakeCountedString("frame file");
  picture.FrameIndex = NumberIn(slot(2), "frame index");
  picture.JournalFile = slot(3).TakeCountedString("journal file");
  picture.JournalName = slot(4).TakeCountedString("journal name");
  picture.Left = NumberIn(slot(5), "left");
  picture.PageNumber = NumberIn(slot(6), "page number");
  picture.PictureFile = slot(7).TakeCountedString("picture file");
  picture.PictureHeight = NumberIn(slot(8), "picture height");
  picture.Spare1 = NumberIn(slot(9), "spare number");
  picture.PictureWidth = NumberIn(slot(10), "picture width");
  picture.Top = NumberIn(slot(11), "top");
  return picture;
}

// The rows that the bytes reach, the last one in part.
std::uint64_t OldRowsIn(std::string_view bytes) {
  constexpr std::size_t rowSize = slotsOfRow * slotSize;
  return bytes.size() <= slotSize ? 0 : (bytes.size() - slotSize + rowSize - 1) / rowSize;
}

void TakeOldRow(std::string_view bytes, std::size_t row, DecodedPictures& store) {
  try {
    store.rows.push_back(OldRow(bytes, row));
  } catch (const MissingField&) {
    store.rows.emplace_back();  // keeps the rows behind it at their numbers
    store.isDamaged = true;
  }
}

// What lies behind the last row of the count is no damage: such a file keeps its length when rows go.
void TakeOldStore(std::string_view bytes, DecodedPictures& store) {
  const std::int32_t count = NumberIn(Slot(bytes, 0), "number of the last row");
  const std::uint64_t promised = count < 0 ? mostRows : std::uint64_t(count) + 1;
  const std::uint64_t present = OldRowsIn(bytes);
  store.isDamaged = present < promised;
  for (std::size_t row = 0; row < std::min(promised, present); ++row) TakeOldRow(bytes, row, store);
}

template <class Take>
DecodedPictures Decoded(Take&& take) {
  DecodedPictures store;
  try {
    take(store);
  } catch (const MissingField&) {
    store.isDamaged = true;
    store.rows.emplace_back();  // as behind the last record of a sound store
  }
  if (store.rows.empty()) store.rows.emplace_back();
  return store;
}

}  // namespace

DecodedPictures DecodePictureStore(std::string_view bytes) {
  Reader reader(bytes);
  return Decoded([&](DecodedPictures& store) { TakeStore(reader, store); });
}

std::string EncodePictureStore(const std::vector<PagePicture>& rows) {
  const auto isKept = [](const PagePicture& row) { return row.Deleted != True; };
  std::string bytes;
  AppendNumber(bytes, static_cast<std::int32_t>(std::count_if(rows.begin(), rows.end(), isKept)));
  for (const PagePicture& row : rows)
    if (isKept(row)) AppendRecord(bytes, row);
  return bytes;
}

DecodedPictures DecodeOldPictureStore(std::string_view bytes) {
  return Decoded([bytes](DecodedPictures& store) { TakeOldStore(bytes, store); });
}

}  // namespace store
