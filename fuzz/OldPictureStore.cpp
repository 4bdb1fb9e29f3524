// jpics.bin: it goes when it is read, but a damaged one is kept, and tqpics.bin beside it waits for the next
// save.

#include "fuzz/StoredPictures.h"

void Try(std::string_view input) {
  constexpr std::size_t bytesOfRow = std::size_t{12} * 128;
  const std::string bytes(input);
  Desk desk;
  desk.Write("tqpics.bin", "not looked at");
  desk.Write("jpics.bin", bytes);
  LoadPictureStore();
  Require(desk.damageTold <= 1, "damage is told once");
  Desk::Files left = {{"tqpics.bin", "not looked at"}};
  if (desk.damageTold == 1) left["jpics.bin.damaged"] = bytes;
  desk.RequireFiles(left, "the older file goes, or is kept when it is damaged");
  Require(Pictures.size() <= input.size() / bytesOfRow + 1, "rows come from bytes");
  RequireStoredPictures(desk, input.size());
  left["tqpics.bin"] = desk.Read("tqpics.bin");
  desk.RequireFiles(left, "only the newer file is written");
}
