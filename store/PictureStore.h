// The picture stores, tqpics.bin and the older jpics.bin: bytes to rows of Pictures and back.
// docs/file-formats.md shows both layouts.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "state/State.h"

namespace store {

struct DecodedPictures {
  std::vector<PagePicture> rows;  // never empty: row 0 is there, and blank where the bytes lack it
  bool isDamaged = false;         // the bytes hold less than they promise, or more
};

// tqpics.bin. A store of N records gives N + 1 rows: its count is taken for the highest row, and what lies
// behind the last record reads as a blank one. A damaged store gives the whole records of its start, and the
// blank row behind them. No count or length is believed beyond the bytes.
DecodedPictures DecodePictureStore(std::string_view bytes);

// The records of the rows whose Deleted is not True, row 0 and blank ones included, behind their count.
std::string EncodePictureStore(const std::vector<PagePicture>& rows);

// jpics.bin: slots of 128 bytes, a value each. Its count is the highest row, and there is no row more. In a
// damaged store a row that is not whole is blank; none is added for what lies behind the end.
DecodedPictures DecodeOldPictureStore(std::string_view bytes);

}  // namespace store
