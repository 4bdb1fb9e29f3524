#include "richtext/rtf/LookWriter.h"

#include <algorithm>
#include <string>

#include "richtext/characters/Unicode.h"
#include "richtext/document/Limits.h"
#include "richtext/rtf/Hyperlink.h"

namespace richtext::rtf {
namespace {

std::string_view WordOf(UnderlineKind kind) {
  constexpr std::string_view Words[] = {"ulnone",     "ul",      "ulw",       "uldb",      "uld",
                                        "uldash",     "uldashd", "uldashdd",  "ulwave",    "ulth",
                                        "ulldash",    "ulthd",   "ulthdash",  "ulthldash", "ulthdashd",
                                        "ulthdashdd", "ulhwave", "ululdbwave"};
  return Words[static_cast<std::size_t>(kind)];
}

std::string_view WordOf(VerticalPlace place) {
  constexpr std::string_view Words[] = {"", "super", "sub"};
  return Words[static_cast<std::size_t>(place)];
}

}  // namespace

LookWriter::LookWriter(const Document& document, const Tables& tables, Output& out)
    : document_(document), out_(out) {
  if (tables.HasNameless()) look_.font = 0;
  looks_.reserve(document.formats.size());
  for (std::uint32_t i = 0; i < document.formats.size(); ++i)
    looks_.push_back(LookOf(document.formats[i], i, tables));
}

LookWriter::Look LookWriter::LookOf(const CharacterFormat& format, std::uint32_t number,
                                    const Tables& tables) {
  Look look;
  look.font = tables.Font(number);
  look.halfPoints = std::clamp(format.halfPoints, 1, MaxHalfPoints);
  look.color = tables.Color(number);
  look.highlight = tables.Highlight(number);
  look.bold = format.bold;
  look.italic = format.italic;
  look.strikethrough = format.strikethrough;
  look.hidden = format.hidden;
  look.underline = format.underline;
  look.capitals = format.capitals;
  look.place = format.place;
  return look;
}

void LookWriter::SetText(std::uint32_t format) {
  SetLink(document_.formats[format].link);
  SetLook(looks_[format]);
}

void LookWriter::SetMark(std::uint32_t format) {
  SetLink({});
  SetLook(looks_[format]);
}

void LookWriter::EndParagraph() {
  EndGroup();
}

// The group of a look lies within the field.
void LookWriter::SetLink(std::string_view link) {
  if (link == link_) return;
  EndGroup();
  if (!link_.empty()) {
    out_.Raw("}}");
    look_ = lookAround_;
  }
  link_ = link;
  const std::string fitting = FittingLink(link);
  if (fitting.empty()) {
    link_ = {};
    return;
  }
  lookAround_ = look_;
  out_.Raw("{\\field{\\*\\fldinst{");
  out_.Text(ToUtf16(InstructionOfLink(fitting)));
  out_.Raw("}}");
  out_.BeginGroup("fldrslt");
}

void LookWriter::SetLook(const Look& look) {
  if (look == look_) return;
  SetGrouped(look);
  if (look.color != look_.color) out_.Word("cf", static_cast<std::int32_t>(look.color));
  out_.Switch("b", look_.bold, look.bold);
  out_.Switch("i", look_.italic, look.italic);
  if (look.underline != look_.underline) out_.Word(WordOf(look.underline));
  out_.Switch("strike", look_.strikethrough, look.strikethrough);
  SetCapitals(look.capitals);
  out_.Switch("v", look_.hidden, look.hidden);
  if (look.font != look_.font) out_.Word("f", static_cast<std::int32_t>(look.font));
  if (look.halfPoints != look_.halfPoints) out_.Word("fs", look.halfPoints);
  look_ = look;
}

void LookWriter::SetGrouped(const Look& look) {
  if (look.highlight == look_.highlight && look.place == look_.place) return;
  EndGroup();
  if (!look.IsGrouped()) return;
  lookAroundGroup_ = look_;
  out_.Raw("{");
  if (look.highlight != 0) out_.Word("highlight", static_cast<std::int32_t>(look.highlight));
  if (look.place != VerticalPlace::Baseline) out_.Word(WordOf(look.place));
  look_.highlight = look.highlight;
  look_.place = look.place;
}

void LookWriter::EndGroup() {
  if (!look_.IsGrouped()) return;
  out_.Raw("}");
  look_ = lookAroundGroup_;
}

void LookWriter::SetCapitals(Capitals capitals) {
  out_.Switch("caps", look_.capitals == Capitals::All, capitals == Capitals::All);
  out_.Switch("scaps", look_.capitals == Capitals::Small, capitals == Capitals::Small);
}

}  // namespace richtext::rtf
