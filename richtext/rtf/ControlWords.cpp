#include "richtext/rtf/ControlWords.h"

#include <array>
#include <cstddef>
#include <iterator>

#include "richtext/characters/Unicode.h"
#include "richtext/rtf/Handlers.h"
#include "richtext/rtf/ListHandlers.h"
#include "richtext/rtf/ShapeHandlers.h"
#include "richtext/rtf/TableWords.h"
#include "richtext/rtf/WordMakers.h"

namespace richtext::rtf {
namespace {

using namespace handlers;

constexpr ControlWord KnownWords[] = {
    WordOf("tab", Character, u'\t'),
    Word("cell", CellEnd),
    Word("nestcell", NestedCellEnd),
    WordOf("line", Character, LineBreak),
    WordOf("softline", Character, LineBreak),
    WordOf("lbr", Character, LineBreak),
    WordOf("emdash", Character, 0x2014),
    WordOf("endash", Character, 0x2013),
    WordOf("bullet", Character, 0x2022),
    WordOf("lquote", Character, 0x2018),
    WordOf("rquote", Character, 0x2019),
    WordOf("ldblquote", Character, 0x201C),
    WordOf("rdblquote", Character, 0x201D),
    WordOf("emspace", Character, 0x2003),
    WordOf("enspace", Character, 0x2002),
    WordOf("qmspace", Character, 0x2005),
    WordOf("zwj", Character, 0x200D),
    WordOf("zwnj", Character, 0x200C),
    WordOf("zwbo", Character, 0x200B),
    WordOf("zwnbo", Character, 0x2060),
    WordOf("ltrmark", Character, 0x200E),
    WordOf("rtlmark", Character, 0x200F),
    End("par"),
    End("sect"),
    End("page"),
    End("column"),
    {"row", RowEnd, 0, 0, WordKind::Structure},
    {"nestrow", NestedRowEnd, 0, 0, WordKind::Structure},
    {"u", Unicode, 0, 0, WordKind::Structure},
    Word("uc", FallbackLength, 1),

    WordOf("ansi", CharacterSet, WesternPage),
    WordOf("mac", CharacterSet, MacintoshPage),
    WordOf("pc", CharacterSet, 437),
    WordOf("pca", CharacterSet, 850),
    Word("ansicpg", AnsiCodePage),

    Word("deftab", TabDistance, DefaultTabDistance),
    Word("deff", DefaultFont),
    Word("f", Font),
    Word("fcharset", FontCharset),
    Word("cpg", FontCodePage),
    Word("red", Component<&ColorTable::SetRed>),
    Word("green", Component<&ColorTable::SetGreen>),
    Word("blue", Component<&ColorTable::SetBlue>),
    Word("cf", Color),
    Word("highlight", Highlight),
    Word("cb", Background),
    Word("chcbpat", Background),

    Word("plain", Plain),
    Word("fs", FontSize, DefaultHalfPoints),
    Word("b", Toggle<&CharacterState::bold>, On),
    Word("i", Toggle<&CharacterState::italic>, On),
    Word("strike", Toggle<&CharacterState::strikethrough>, On),
    Word("striked", Toggle<&CharacterState::doubleStrikethrough>, On),
    Word("v", Toggle<&CharacterState::hidden>, On),
    WordOf("caps", Capital, Capitals::All, On),
    WordOf("scaps", Capital, Capitals::Small, On),
    WordOf("super", Place, VerticalPlace::Superscript, On),
    WordOf("sub", Place, VerticalPlace::Subscript, On),
    WordOf("nosupersub", Place, VerticalPlace::Baseline, On),
    WordOf("up", Shift, 1, UsualShift),
    WordOf("dn", Shift, -1, UsualShift),
    WordOf("ulnone", Underline, UnderlineKind::None, On),
    WordOf("ul", Underline, UnderlineKind::Single, On),
    WordOf("ulw", Underline, UnderlineKind::Words, On),
    WordOf("uldb", Underline, UnderlineKind::Double, On),
    WordOf("uld", Underline, UnderlineKind::Dotted, On),
    WordOf("uldash", Underline, UnderlineKind::Dash, On),
    WordOf("uldashd", Underline, UnderlineKind::DashDot, On),
    WordOf("uldashdd", Underline, UnderlineKind::DashDotDot, On),
    WordOf("ulwave", Underline, UnderlineKind::Wave, On),
    WordOf("ulth", Underline, UnderlineKind::Thick, On),
    WordOf("ulhair", Underline, UnderlineKind::Single, On),
    WordOf("ulhwave", Underline, UnderlineKind::ThickWave, On),
    WordOf("ululdbwave", Underline, UnderlineKind::DoubleWave, On),
    WordOf("ulldash", Underline, UnderlineKind::LongDash, On),
    WordOf("ulthd", Underline, UnderlineKind::ThickDotted, On),
    WordOf("ulthdash", Underline, UnderlineKind::ThickDash, On),
    WordOf("ulthldash", Underline, UnderlineKind::ThickLongDash, On),
    WordOf("ulthdashd", Underline, UnderlineKind::ThickDashDot, On),
    WordOf("ulthdashdd", Underline, UnderlineKind::ThickDashDotDot, On),

    Word("pard", ParagraphDefault),
    Word("s", StyleOfParagraph),
    Word("sbasedon", Transparent),
    WordOf("ql", Align, Alignment::Left),
    WordOf("qr", Align, Alignment::Right),
    WordOf("qc", Align, Alignment::Center),
    WordOf("qj", Align, Alignment::Justify),
    WordOf("qd", Align, Alignment::Justify),
    Word("li", SideIndent<&ParagraphState::leftIndent, &ParagraphState::startIndent>),
    Word("ri", SideIndent<&ParagraphState::rightIndent, &ParagraphState::endIndent>),
    Word("lin", Indent<&ParagraphState::startIndent>),
    Word("rin", Indent<&ParagraphState::endIndent>),
    Word("fi", Indent<&ParagraphState::firstLineIndent>),
    Word("sb", Space<&ParagraphState::spaceBefore>),
    Word("sa", Space<&ParagraphState::spaceAfter>),
    Word("sbauto", handlers::AutoSpace<&ParagraphState::autoBefore>, On),
    Word("saauto", handlers::AutoSpace<&ParagraphState::autoAfter>, On),
    Word("sl", Indent<&ParagraphState::lineSpacing>),
    Word("slmult", MultipleSpacing, On),
    Word("cbpat", ParagraphGround<&Shading::back>),
    Word("cfpat", ParagraphGround<&Shading::fore>),
    Word("shading", ParagraphPattern),
    WordOf("ltrpar", Flow, Direction::LeftToRight),
    WordOf("rtlpar", Flow, Direction::RightToLeft),
    WordOf("tqr", NextTab, TabKind::Right),
    WordOf("tqc", NextTab, TabKind::Center),
    WordOf("tqdec", NextTab, TabKind::Decimal),
    WordOf("tldot", NextLeader, TabLeader::Dots),
    WordOf("tlmdot", NextLeader, TabLeader::MiddleDots),
    WordOf("tlhyph", NextLeader, TabLeader::Hyphens),
    WordOf("tlul", NextLeader, TabLeader::Line),
    WordOf("tlth", NextLeader, TabLeader::ThickLine),
    WordOf("tleq", NextLeader, TabLeader::EqualSigns),
    Word("tx", Tab),

    Word("ls", ListOfTable),
    Word("ilvl", ListLevel),
    Word("list", BeginInTable<&ListTable::BeginList>),
    Word("listlevel", BeginInTable<&ListTable::BeginLevel>),
    Word("levelnfc", SetInTable<&ListTable::SetNumberKind>),
    Word("levelnfcn", SetInTable<&ListTable::SetNumberKind>),
    Word("levelstartat", SetInTable<&ListTable::SetStart>, 1),
    Word("listid", SetInTable<&ListTable::SetListId>),
    Word("liststyleid", SetInTable<&ListTable::SetStyleId>),
    Word("listoverride", BeginInTable<&ListTable::BeginOverride>),
    Word("lfolevel", BeginInTable<&ListTable::BeginOverrideLevel>),
    Word("listoverridestartat", BeginInTable<&ListTable::Restart>),
    WordOf("pnlvlblt", NumberingKind, ListKind::Bullet),
    WordOf("pnlvlcont", NumberingKind, ListKind::None),
    Word("pnlvlbody", NumberingBody),
    Word("pnlvl", NumberingLevel, 1),
    WordOf("pncard", NumberingKind, ListKind::Decimal),
    WordOf("pndec", NumberingKind, ListKind::Decimal),
    WordOf("pnord", NumberingKind, ListKind::Decimal),
    WordOf("pnordt", NumberingKind, ListKind::Decimal),
    WordOf("pnlcltr", NumberingKind, ListKind::LowerLetter),
    WordOf("pnucltr", NumberingKind, ListKind::UpperLetter),
    WordOf("pnlcrm", NumberingKind, ListKind::LowerRoman),
    WordOf("pnucrm", NumberingKind, ListKind::UpperRoman),
    Word("pnstart", NumberingStart, 1),
    Word("pnrestart", NumberingTwin),
    Word("pnindent", NumberingIndent),
    Word("pnf", Font),

    Sent("fonttbl", Destination::FontTable),
    Sent("colortbl", Destination::ColorTable),
    Sent("upr", Destination::Discard),
    Sent("stylesheet", Destination::StyleSheet),
    Aside("generator", Destination::Generator),
    {"ud", UnicodeTwin, 0, 0, WordKind::Destination},
    {"pict", PictureGroup, 0, 0, WordKind::Destination},
    Sent("listtable", Destination::ListTable),
    Sent("listoverridetable", Destination::ListTable),
    Aside("leveltext", Destination::ListLevelText),
    {"pn", BeginNumbering, 0, 0, WordKind::Destination},
    Aside("pntxtb", Destination::NumberingBefore),
    Aside("pntxta", Destination::NumberingAfter),
    {"footnote", Note, 0, 0, WordKind::Destination},
    LabelOf("pntext", WrittenLabel::Kind::Text),
    LabelOf("listtext", WrittenLabel::Kind::ListText),
    {"field", Field, 0, 0, WordKind::Destination},
    Aside("fldinst", Destination::FieldInstruction),
    {"fldrslt", FieldResult, 0, 0, WordKind::Destination},
    {"shppict", ModernPicture, 0, 0, WordKind::Destination},
    {"nonshppict", OlderPicture, 0, 0, WordKind::Destination},
    Shown("object"),
    Shown("result"),
    {"shp", Shape, 0, 0, WordKind::Destination},
    {"shpgrp", Shape, 0, 0, WordKind::Destination},
    Shown("shpinst"),
    WordOf("shpleft", ShapeEdge, ShapeState::Left),
    WordOf("shptop", ShapeEdge, ShapeState::Top),
    WordOf("shpright", ShapeEdge, ShapeState::Right),
    WordOf("shpbottom", ShapeEdge, ShapeState::Bottom),
    {"sp", handlers::ShapeProperty, 0, 0, WordKind::Destination},
    Aside("sn", Destination::ShapeName),
    {"sv", ShapeValue, 0, 0, WordKind::Destination},
    {"shprslt", ShapeResult, 0, 0, WordKind::Destination},
    Shown("do"),
    {"shptxt", ShapeText, 0, 0, WordKind::Destination},
    {"dptxbxtext", ShapeText, 0, 0, WordKind::Destination},
    {"nesttableprops", NestedRow, 0, 0, WordKind::Destination},
};

// Groups that are passed over, which many write without "\*".
constexpr std::string_view SkippedNames[] = {"annotation",  "background",
                                             "bkmkend",     "bkmkstart",
                                             "blipuid",     "colorschememapping",
                                             "datafield",   "datastore",
                                             "docvar",      "falt",
                                             "filetbl",     "fname",
                                             "footer",      "footerf",
                                             "footerl",     "footerr",
                                             "header",      "headerf",
                                             "headerl",     "headerr",
                                             "info",        "latentstyles",

                                             "mmath",       "levelnumbers",
                                             "listname",    "liststylename",
                                             "listpicture", "nonesttables",
                                             "objclass",    "objdata",
                                             "objname",     "panose",
                                             "pgptbl",      "picprop",

                                             "private",     "revtbl",
                                             "rsidtbl",     "tc",
                                             "template",    "themedata",
                                             "xe",          "xmlnstbl",

                                             "aftncn",      "aftnsep",
                                             "aftnsepc",    "ftncn",
                                             "ftnsep",      "ftnsepc"};

constexpr std::size_t WordCount = std::size(KnownWords) + std::size(tables::Words) + std::size(SkippedNames);

constexpr std::array<ControlWord, WordCount> AllWords = [] {
  std::array<ControlWord, WordCount> all{};
  std::size_t at = 0;
  for (const ControlWord& word : KnownWords) all[at++] = word;
  for (const ControlWord& word : tables::Words) all[at++] = word;
  for (const std::string_view name : SkippedNames) all[at++] = Skipped(name);
  return all;
}();

// The table by name: open addressing, made while compiling.
constexpr std::size_t SlotCount = 1024;
static_assert(WordCount < SlotCount / 2);

constexpr std::size_t SlotOf(std::string_view name) {
  std::uint32_t hash = 2166136261U;
  for (const char letter : name) hash = (hash ^ static_cast<unsigned char>(letter)) * 16777619U;
  return (hash ^ (hash >> 15)) % SlotCount;
}

constexpr std::array<std::uint16_t, SlotCount> RowOfSlot = [] {
  std::array<std::uint16_t, SlotCount> rows{};  // 0: free, else the row's number + 1
  for (std::size_t row = 0; row < WordCount; ++row) {
    std::size_t slot = SlotOf(AllWords[row].name);
    while (rows[slot] != 0) slot = (slot + 1) % SlotCount;
    rows[slot] = static_cast<std::uint16_t>(row + 1);
  }
  return rows;
}();

constexpr std::size_t LongestName = 20;

}  // namespace

const ControlWord* FindControlWord(std::string_view name) {
  if (name.size() > LongestName) return nullptr;
  for (std::size_t slot = SlotOf(name); RowOfSlot[slot] != 0; slot = (slot + 1) % SlotCount) {
    const ControlWord& word = AllWords[RowOfSlot[slot] - 1U];
    if (word.name == name) return &word;
  }
  return nullptr;
}

}  // namespace richtext::rtf
