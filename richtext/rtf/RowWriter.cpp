#include "richtext/rtf/RowWriter.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace richtext::rtf {
namespace {

constexpr std::string_view BorderWords[] = {"",        "brdrnone", "brdrs",    "brdrth",    "brdrdb",
                                            "brdrdot", "brdrdash", "brdrhair", "brdrtriple"};
constexpr std::string_view RowSides[] = {"trbrdrt", "trbrdrl", "trbrdrb", "trbrdrr", "trbrdrh", "trbrdrv"};
constexpr std::string_view CellSides[] = {"clbrdrt", "clbrdrl", "clbrdrb", "clbrdrr"};

template <class Value>
std::string_view WordOf(Value value, const std::string_view (&words)[3]) {
  return words[static_cast<std::size_t>(value)];
}

void WriteIfAny(std::string_view word, Output& out) {
  if (!word.empty()) out.Word(word);
}

void WriteBorder(std::string_view side, const Border& border, const Tables& tables, Output& out) {
  if (border.kind == BorderKind::None) return;
  out.Word(side);
  out.Word(BorderWords[static_cast<std::size_t>(border.kind)]);
  out.Measure("brdrw", border.width);
  out.Measure("brdrcf", tables.NumberOf(border.color));
}

void WriteCell(const CellFormat& cell, const Tables& tables, Output& out) {
  WriteIfAny(WordOf(cell.across, {"", "clmgf", "clmrg"}), out);
  WriteIfAny(WordOf(cell.down, {"", "clvmgf", "clvmrg"}), out);
  WriteIfAny(WordOf(cell.place, {"", "clvertalc", "clvertalb"}), out);
  for (std::size_t side = 0; side < cell.borders.size(); ++side)
    WriteBorder(CellSides[side], cell.borders[side], tables, out);
  out.Measure("clcbpat", tables.NumberOf(cell.ground));
  out.Word("cellx", cell.right);
}

}  // namespace

void WriteRow(const RowFormat& format, const Tables& tables, Output& out) {
  out.Word("trowd");
  out.Measure("trgaph", format.gap);
  out.Measure("trleft", format.left);
  out.Measure("trrh", format.height);
  WriteIfAny(WordOf(format.place, {"", "trqc", "trqr"}), out);
  if (format.isHead) out.Word("trhdr");
  for (std::size_t side = 0; side < format.borders.size(); ++side)
    WriteBorder(RowSides[side], format.borders[side], tables, out);
  for (const CellFormat& cell : format.cells) WriteCell(cell, tables, out);
  out.Raw("\r\n");
}

}  // namespace richtext::rtf
