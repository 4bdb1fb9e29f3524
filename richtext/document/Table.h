// The rows of a page's tables, which lie among its paragraphs as they do in RTF: paragraphs that belong to a
// row follow each other, and each tells whether its cell or its row ends with it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace richtext {

// Where a paragraph stands, and what ends with it.
enum class Place : std::uint8_t { Text, Cell, CellEnd, RowEnd };  // the end of a row ends its last cell

// Of one that is hidden it is told that none is there, whatever the row tells; of None nothing is told.
enum class BorderKind : std::uint8_t {
  None,
  Hidden,
  Single,
  Thick,
  Double,
  Dotted,
  Dashed,
  Hairline,
  Triple,
  SmallDashes,
  DashDot,
  DashDotDot,
  Inset,
  Outset,
  Ridge,
  Groove
};
enum class Merging : std::uint8_t { None, First, Continued };  // with the cells behind or below
enum class PlaceInCell : std::uint8_t { Top, Center, Bottom };
enum class PlaceOfTable : std::uint8_t { Left, Center, Right };

struct Border {
  BorderKind kind = BorderKind::None;
  std::int32_t width = 0;              // twips
  std::optional<std::uint32_t> color;  // 0x00BBGGRR; nothing: automatic, which is black

  bool operator==(const Border&) const = default;
};

constexpr bool IsShown(const Border& border) {
  return border.kind != BorderKind::None && border.kind != BorderKind::Hidden;
}

enum Side : std::uint8_t { TopSide, LeftSide, BottomSide, RightSide, BetweenRows, BetweenCells };

struct CellFormat {
  std::int32_t right = 0;  // twips from the left edge of the text to where the cell ends
  Merging across = Merging::None;
  Merging down = Merging::None;
  PlaceInCell place = PlaceInCell::Top;
  std::optional<std::uint32_t> ground;  // 0x00BBGGRR; nothing: the paper
  std::array<Border, 4> borders;        // by Side

  bool operator==(const CellFormat&) const = default;
};

struct RowFormat {
  std::int32_t left = 0;    // twips from the left edge of the text
  std::int32_t gap = 0;     // half of what is free between the texts of two cells
  std::int32_t height = 0;  // least, or exact where it is negative; 0: as high as its cells
  PlaceOfTable place = PlaceOfTable::Left;
  bool isHead = false;            // is shown again at the top of each sheet
  std::array<Border, 6> borders;  // by Side, of cells that tell none
  std::vector<CellFormat> cells;  // as many as the row has, from left to right

  bool operator==(const RowFormat&) const = default;
};

// `row` as a document can hold it: of so many cells, one at least, and within Limits.h. A cell that it does
// not tell is an inch wide.
RowFormat FittingRow(RowFormat row, std::size_t cells);

}  // namespace richtext
