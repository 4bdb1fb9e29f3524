#include "richtext/rtf/BorderWriter.h"

#include <cstddef>

namespace richtext::rtf {

void WriteBorder(std::string_view side, const Border& border, const Tables& tables, Output& out) {
  constexpr std::string_view Words[] = {"",           "brdrnone",   "brdrs",      "brdrth",
                                        "brdrdb",     "brdrdot",    "brdrdash",   "brdrhair",
                                        "brdrtriple", "brdrdashsm", "brdrdashd",  "brdrdashdd",
                                        "brdrinset",  "brdroutset", "brdremboss", "brdrengrave"};
  if (border.kind == BorderKind::None) return;
  out.Word(side);
  out.Word(Words[static_cast<std::size_t>(border.kind)]);
  out.Measure("brdrw", border.width);
  out.Measure("brdrcf", tables.NumberOf(border.color));
}

}  // namespace richtext::rtf
