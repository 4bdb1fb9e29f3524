#include "richtext/rtf/RowWriter.h"

#include <cstddef>
#include <string>
#include <string_view>

#include "richtext/rtf/BorderWriter.h"

namespace richtext::rtf {
namespace {

constexpr std::string_view RowSides[] = {"trbrdrt", "trbrdrl", "trbrdrb", "trbrdrr", "trbrdrh", "trbrdrv"};
constexpr std::string_view CellSides[] = {"clbrdrt", "clbrdrl", "clbrdrb", "clbrdrr"};

template <class Value>
std::string_view WordOf(Value value, const std::string_view (&words)[3]) {
  return words[static_cast<std::size_t>(value)];
}

void WriteIfAny(std::string_view word, Output& out) {
  if (!word.empty()) out.Word(word);
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
