// What the words of a table's row tell: of its cells one after the other, of their borders, and of itself.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "richtext/document/Limits.h"
#include "richtext/document/Table.h"
#include "richtext/rtf/Shading.h"

namespace richtext::rtf {

// The row that was told last stands for all that follow, until the next one begins (\trowd). Rows within a
// cell are passed over: what they tell is told between BeginNested and EndNested.
class RowWords {
 public:
  // What the words of a border are about.
  enum class Owner : std::uint8_t { Nothing, Row, Cell, Paragraph };

  const RowFormat& Told() const { return rows_[Outer].row; }

  void BeginNested() { level_ = Nested; }
  void EndNested() { level_ = Outer; }

  void Begin() { InHand() = {}; }
  RowFormat& Row() { return InHand().row; }
  CellFormat& Cell() { return InHand().cell; }
  Shading& Ground() { return InHand().ground; }  // of the cell
  void EndCell(std::int32_t right);

  void BeginBorder(Owner owner, std::uint8_t side) {
    InHand().owner = owner;
    InHand().side = side;
  }
  // Nothing where the border is none of a row or a cell.
  Border* BorderInHand();
  // It may be one of a paragraph, on one of its sides or on all of them.
  static constexpr std::uint8_t EverySide = 0xFF;
  bool IsOfParagraph() { return InHand().owner == Owner::Paragraph; }
  std::uint8_t SideInHand() { return InHand().side; }

 private:
  enum Level : std::uint8_t { Outer, Nested };
  struct Words {
    RowFormat row;
    CellFormat cell;  // of the next \cellx
    Shading ground;   // likewise
    Owner owner = Owner::Nothing;
    std::uint8_t side = 0;
  };
  Words& InHand() { return rows_[level_]; }

  std::array<Words, 2> rows_;
  Level level_ = Outer;
};

inline void RowWords::EndCell(std::int32_t right) {
  Words& words = InHand();
  words.cell.right = right;
  if (const std::int32_t ground = words.ground.Color(); ground != Shading::Automatic)
    words.cell.ground = static_cast<std::uint32_t>(ground);
  if (words.row.cells.size() < MaxCells) words.row.cells.push_back(words.cell);
  words.cell = {};
  words.ground = {};
  words.owner = Owner::Nothing;
}

inline Border* RowWords::BorderInHand() {
  Words& words = InHand();
  if (words.owner == Owner::Row) return &words.row.borders[words.side];
  return words.owner == Owner::Cell ? &words.cell.borders[words.side] : nullptr;
}

}  // namespace richtext::rtf
