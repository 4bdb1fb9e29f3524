// A diary of many pages, all alike but for their numbers and dates.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace bench {

// RTF in the manner of the classic rich edit controls, at most `bytes` long where these leave room for a
// line.
std::string PageOf(std::int32_t number, std::size_t bytes);

// One journal in the bookcase, "Bench", and open; the password is "x".
void OneJournal();

// Rows in the bookcase until there are so many, each with its own name, file and icon.
void MoreJournals(std::int32_t count);

// Writes the journal's file into the program's folder: a title page and a page for each of the last `pages`
// days.
void WriteJournal(std::int32_t pages, std::size_t pageBytes);

}  // namespace bench
