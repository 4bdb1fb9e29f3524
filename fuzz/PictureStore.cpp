// tqpics.bin: reading changes nothing, damage is told once, and a damaged file is kept when the rows are
// saved.

#include "fuzz/StoredPictures.h"

void Try(std::string_view input) {
  constexpr std::size_t smallestRecord = 40;
  const std::string bytes(input);
  Desk desk;
  desk.Write("tqpics.bin", bytes);
  LoadPictureStore();
  desk.RequireFiles({{"tqpics.bin", bytes}}, "reading leaves the file alone");
  Require(desk.damageTold <= 1, "damage is told once");
  Require(Pictures.size() <= input.size() / smallestRecord + 1, "rows come from bytes");
  const bool wasDamaged = desk.damageTold == 1;
  RequireStoredPictures(desk, input.size());
  desk.RequireKept("tqpics.bin", bytes, wasDamaged);
}
