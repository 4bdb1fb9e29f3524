#include "richtext/rtf/ParagraphWriter.h"

#include <string_view>

#include "richtext/document/Limits.h"
#include "richtext/document/ListLabel.h"
#include "richtext/rtf/BorderWriter.h"

namespace richtext::rtf {
namespace {

std::string_view WordOf(Alignment alignment) {
  constexpr std::string_view Words[] = {"ql", "qr", "qc", "qj"};
  return Words[static_cast<std::size_t>(alignment)];
}

std::string_view WordOf(TabKind kind) {
  constexpr std::string_view Words[] = {"tql", "tqr", "tqc", "tqdec"};
  return Words[static_cast<std::size_t>(kind)];
}

std::string_view WordOf(TabLeader leader) {
  constexpr std::string_view Words[] = {"", "tldot", "tlmdot", "tlhyph", "tlul", "tlth", "tleq"};
  return Words[static_cast<std::size_t>(leader)];
}

std::string_view WordOf(ListKind kind) {
  constexpr std::string_view Words[] = {"", "", "pndec", "pnlcltr", "pnucltr", "pnlcrm", "pnucrm"};
  return Words[static_cast<std::size_t>(kind)];
}

}  // namespace

void ParagraphWriter::Begin(const ParagraphFormat& format, const Around& around) {
  const bool changes = format_ != format || isInRow_ != around.isInRow;
  if (changes) {
    isInRow_ = around.isInRow;
    format_ = format;
    list_ = FittingList(format.list);
    out_.Word("pard");
    if (isInRow_) out_.Word("intbl");
  }
  const std::int32_t number = items_.Count(list_);
  if (list_.kind != ListKind::None) WriteLabel(list_, number);
  if (changes) WriteFormat(format, around);
}

void ParagraphWriter::WriteFormat(const ParagraphFormat& format, const Around& around) {
  if (list_.kind != ListKind::None) WriteList(list_);
  out_.Measure("ls", around.list);
  if (format.direction == Direction::RightToLeft) out_.Word("rtlpar");
  out_.Measure("fi", FittingIndent(format.firstLineIndent));
  out_.Measure("li", FittingIndent(format.leftIndent));
  out_.Measure("ri", FittingIndent(format.rightIndent));
  if (format.direction == Direction::RightToLeft) WriteSidesFromRight(format);
  out_.Measure("sb", FittingSpace(format.spaceBefore));
  out_.Measure("sa", FittingSpace(format.spaceAfter));
  if (format.autoBefore) out_.Word("sbauto", 1);
  if (format.autoAfter) out_.Word("saauto", 1);
  WriteSpacing(format);
  WriteTabs(format);
  WriteBorders(format.borders);
  out_.Measure("cbpat", tables_.NumberOf(format.ground));
  if (format.alignment != Alignment::Left) out_.Word(WordOf(format.alignment));
}

// Where lines run from right to left, some readers take the older words for the sides where lines begin and
// end.
void ParagraphWriter::WriteSidesFromRight(const ParagraphFormat& format) {
  const std::int32_t start = FittingIndent(format.rightIndent);
  const std::int32_t end = FittingIndent(format.leftIndent);
  if (start == 0 && end == 0) return;
  out_.Word("lin", start);
  out_.Word("rin", end);
}

void ParagraphWriter::WriteSpacing(const ParagraphFormat& format) {
  const std::int32_t spacing = FittingSpace(format.lineSpacing);
  if (format.lineSpacingRule == LineSpacingRule::Single || spacing == 0) return;
  out_.Word("sl", format.lineSpacingRule == LineSpacingRule::Exact ? -spacing : spacing);
  out_.Word("slmult", format.lineSpacingRule == LineSpacingRule::Multiple ? 1 : 0);
}

void ParagraphWriter::WriteTabs(const ParagraphFormat& format) {
  for (const TabStop& tab : format.tabs) {
    if (tab.kind != TabKind::Left) out_.Word(WordOf(tab.kind));
    if (tab.leader != TabLeader::None) out_.Word(WordOf(tab.leader));
    out_.Word("tx", FittingIndent(tab.position));
  }
}

void ParagraphWriter::WriteBorders(const ParagraphBorders& borders) {
  constexpr std::string_view Sides[] = {"brdrt", "brdrl", "brdrb", "brdrr"};
  for (std::size_t side = 0; side < borders.size(); ++side) {
    WriteBorder(Sides[side], borders[side].line, tables_, out_);
    out_.Measure("brsp", borders[side].space);
  }
}

// What the classic edit controls write: bullets are a symbol font's, whatever sign they are.
void ParagraphWriter::WriteList(const ListFormat& list) {
  const bool bullet = list.kind == ListKind::Bullet;
  out_.BeginIgnorableGroup("pn");
  out_.Word(bullet ? "pnlvlblt" : "pnlvlbody");
  if (IsPlainBullet(list)) out_.Word("pnf", tables_.SymbolFont());
  out_.Word("pnindent", 0);
  if (!bullet) {
    if (list.twin) out_.Word("pnrestart");
    out_.Word("pnstart", list.start);
    out_.Word(WordOf(list.kind));
  }
  if (!list.before.empty()) {
    out_.BeginGroup("pntxtb");
    if (!WriteSymbol(list)) out_.Text(list.before);
    out_.Raw("}");
  }
  if (!list.after.empty()) {
    out_.BeginGroup("pntxta");
    out_.Text(list.after);
    out_.Raw("}");
  }
  out_.Raw("}");
  out_.Measure("ilvl", list.level);
}

// A label is written again for each item, so a short document could ask for a long one.
void ParagraphWriter::WriteLabel(const ListFormat& list, std::int32_t number) {
  constexpr std::size_t Usual = 12;
  const std::u16string label = LabelText(list, number);
  if (label.size() > Usual && (longLabels_ += label.size()) > MaxLongLabels) return;
  out_.BeginGroup("pntext");
  if (IsPlainBullet(list)) out_.Word("f", tables_.SymbolFont());
  if (!WriteSymbol(list)) out_.Text(label);
  out_.Word("tab");
  out_.Raw("}");
}

bool ParagraphWriter::WriteSymbol(const ListFormat& list) {
  if (!IsPlainBullet(list)) return false;
  out_.Raw("\\'b7");
  return true;
}

}  // namespace richtext::rtf
