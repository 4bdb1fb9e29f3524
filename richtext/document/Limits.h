// What one document may hold. Reader and writer keep the same limits, so that what is written comes back.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace richtext {

constexpr std::int32_t DefaultHalfPoints = 24;
constexpr std::int32_t MaxHalfPoints = 3276;      // the largest size of the classic edit controls
constexpr std::int32_t MaxIndent = 32767;         // twips; the format's own range of parameters
constexpr std::int32_t DefaultTabDistance = 720;  // twips
constexpr std::size_t MaxTabStops = 32;           // of a paragraph; as many as the classic edit controls keep
constexpr std::int32_t AutoSpace = 280;           // twips, between the paragraphs of a web page
constexpr std::size_t MaxCells = 64;              // of a row; as many as word processors make
constexpr std::int32_t MaxBorder = 255;           // twips
constexpr std::int32_t MaxBorderSpace = 620;      // twips; as far off as word processors put a border
constexpr std::size_t TabStopsOfBorder = 4;  // which a paragraph keeps less for each border, as it is as long
constexpr std::size_t TabStopsOfLeader = 1;  // likewise
constexpr std::int32_t MaxListLevel = 8;
constexpr std::int32_t MaxListNumber = 32767;
constexpr std::int32_t MaxPictureTwips = 1'000'000;

// More formats than a person can make; a hostile document would make one a letter.
constexpr std::size_t MaxFormats = 32'000;
// Different borders of paragraphs: each of the words that tell of one, four a side, makes a set on the way.
constexpr std::size_t MaxBorderSets = 2 * MaxFormats;
constexpr std::size_t MaxFrames = MaxBorderSets / (4 * 4 + 1);
// Bytes of fonts' names and links in all character formats, since each holds its own copy.
constexpr std::size_t MaxFormatText = 4'000'000;
// Fonts and colours: room for each format's own, and an end to tables that only cost memory.
constexpr std::size_t MaxTableEntries = 65'536;

constexpr std::size_t MaxFontName = 64;  // UTF-16 units; every format holds its font's name

constexpr std::size_t MaxListText = 32;         // UTF-16 units before or behind a list's number
constexpr std::size_t MaxLongLabels = 20'000;   // letters of long labels that are written beside a list
constexpr std::size_t MaxListTable = 200'000;   // bytes, about, of the list table that is written
constexpr std::size_t MaxLinkText = 1'000'000;  // bytes of all links, as often as they are written
constexpr std::size_t MaxLink = 2048;  // bytes; a longer one is none, as half an address leads nowhere

constexpr std::int32_t FittingIndent(std::int32_t twips) {
  return std::clamp(twips, -MaxIndent, MaxIndent);
}
constexpr std::int32_t FittingSpace(std::int32_t twips) {
  return std::clamp(twips, 0, MaxIndent);
}
// What is too near for a tab to be seen was not meant.
constexpr std::int32_t FittingTabDistance(std::int32_t twips) {
  return twips < 60 ? DefaultTabDistance : std::min(twips, MaxIndent);
}
constexpr std::int32_t FittingPictureSize(std::int64_t twips) {
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(twips, 0, MaxPictureTwips));
}

// `name` without control characters and outer blanks, cut to MaxFontName.
std::u16string FittingFontName(std::u16string_view name);

// `text` without control characters, cut to MaxListText.
std::u16string FittingListText(std::u16string_view text);

// `link` without control characters and outer blanks; empty when it is longer than MaxLink.
std::string FittingLink(std::string_view link);

}  // namespace richtext
