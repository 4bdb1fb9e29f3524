// tqpics.bin: reading changes nothing, damage is told once, and a damaged file is kept when the rows are
// saved.
#include <cstdint>

#include "fuzz/StoredPictures.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t smallestRecord = 40;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  Desk desk;
  desk.Write("tqpics.bin", bytes);
  LoadPictureStore();
  desk.RequireFiles({{"tqpics.bin", bytes}}, "reading leaves the file alone");
  Require(desk.damageTold <= 1, "damage is told once");
  Require(Pictures.size() <= size / smallestRecord + 1, "rows come from bytes");
  const bool wasDamaged = desk.damageTold == 1;
  RequireStoredPictures(desk, size);
  desk.RequireKept("tqpics.bin", bytes, wasDamaged);
  return 0;
}
