// What holds for the rows of either picture store.
#pragma once

#include <numeric>

#include "fuzz/Desk.h"
#include "pictures/modPictures.h"

// The rows have no more text than there are bytes, are saved, and are read as the same rows and a blank one.
inline void RequireStoredPictures(Desk& desk, std::size_t size) {
  const auto texts = [](std::size_t sum, const PagePicture& row) {
    return sum + row.PictureFile.size() + row.Spare2.size() + row.FrameFile.size() + row.JournalName.size() +
           row.JournalFile.size();
  };
  Require(Pictures.size() == static_cast<std::size_t>(PictureCount) + 1, "the count is the highest row");
  Require(std::accumulate(Pictures.begin(), Pictures.end(), std::size_t{0}, texts) <= size,
          "texts come from bytes");

  std::vector<PagePicture> rows = Pictures;
  std::erase_if(rows, [](const PagePicture& row) { return row.Deleted == True; });
  rows.emplace_back();
  const int told = desk.damageTold;
  SavePictureStore();
  LoadPictureStore();
  Require(Pictures == rows, "the rows come back");
  // cppcheck-suppress knownConditionTrueFalse  ; loading counts what it finds damaged
  Require(desk.damageTold == told, "what is saved is sound");
}
