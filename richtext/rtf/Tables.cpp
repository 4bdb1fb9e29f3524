#include "richtext/rtf/Tables.h"

#include <algorithm>
#include <optional>
#include <unordered_map>

#include "richtext/characters/Unicode.h"
#include "richtext/document/Limits.h"
#include "richtext/rtf/Escape.h"

namespace richtext::rtf {
namespace {

// The formats of the document's text and paragraph ends, each once, in the order of their first use.
std::vector<std::uint32_t> FormatsInUse(const Document& document) {
  std::vector<std::uint32_t> used;
  std::vector<bool> seen(document.formats.size());
  const auto use = [&](std::uint32_t format) {
    if (!seen[format]) used.push_back(format);
    seen[format] = true;
  };
  std::size_t run = 0;
  for (const Paragraph& paragraph : document.paragraphs) {
    for (std::uint32_t at = 0; at < paragraph.length; at += document.runs[run++].length)
      use(document.runs[run].format);
    use(paragraph.markFormat);
  }
  return used;
}

// The value's place in the list, at whose end it is put when it is new.
template <typename Value>
std::size_t PlaceOf(const Value& value, std::unordered_map<Value, std::size_t>& places,
                    std::vector<Value>& list) {
  const auto [found, isNew] = places.try_emplace(value, list.size());
  if (isNew) list.push_back(value);
  return found->second;
}

std::u16string FontNameOf(const CharacterFormat& format) {
  return FittingFontName(ToUtf16(format.fontName));
}

bool HasBullets(const Document& document) {
  return std::any_of(document.paragraphs.begin(), document.paragraphs.end(), [&](const Paragraph& paragraph) {
    return document.paragraphFormats[paragraph.format].list.kind == ListKind::Bullet;
  });
}

void AppendColor(std::uint32_t color, std::string& rtf) {
  AppendWord("red", static_cast<std::int32_t>(color & 0xFF), rtf);
  AppendWord("green", static_cast<std::int32_t>((color >> 8) & 0xFF), rtf);
  AppendWord("blue", static_cast<std::int32_t>((color >> 16) & 0xFF), rtf);
  rtf += ';';
}

}  // namespace

Tables::Tables(const Document& document)
    : fontOfFormat_(document.formats.size()),
      colorOfFormat_(document.formats.size()),
      highlightOfFormat_(document.formats.size()),
      hasBullets_(HasBullets(document)) {
  std::unordered_map<std::u16string, std::size_t> fontPlaces;
  const std::vector<std::uint32_t> used = FormatsInUse(document);
  const auto isNameless = [&](std::uint32_t number) { return FontNameOf(document.formats[number]).empty(); };
  if (std::any_of(used.begin(), used.end(), isNameless)) PlaceOf(std::u16string(), fontPlaces, fonts_);
  for (const std::uint32_t number : used) {
    const CharacterFormat& format = document.formats[number];
    fontOfFormat_[number] = PlaceOf(FontNameOf(format), fontPlaces, fonts_);
    colorOfFormat_[number] = Place(format.color);
    highlightOfFormat_[number] = Place(format.highlight);
  }
  for (const ParagraphFormat& format : document.paragraphFormats) {
    Place(format.ground);
    for (const ParagraphBorder& border : format.borders) Place(border.line.color);
  }
  for (const RowFormat& row : document.rowFormats) PlaceColorsOf(row);
}

// The color's number, at the table's end when it is new; 0 where there is none.
std::size_t Tables::Place(const std::optional<std::uint32_t>& color) {
  return color ? PlaceOf(*color & 0xFFFFFF, colorPlaces_, colors_) + 1 : 0;
}

void Tables::PlaceColorsOf(const RowFormat& row) {
  for (const Border& border : row.borders) Place(border.color);
  for (const CellFormat& cell : row.cells) {
    Place(cell.ground);
    for (const Border& border : cell.borders) Place(border.color);
  }
}

void Tables::AppendTo(std::string& rtf) const {
  if (HasFonts()) AppendFonts(rtf);
  rtf += "\r\n";
  if (colors_.empty()) return;
  rtf += "{\\colortbl ;";
  for (const std::uint32_t color : colors_) AppendColor(color, rtf);
  rtf += "}\r\n";
}

// Number 0 is that of no font where some text names none: the table has none of this number.
void Tables::AppendFonts(std::string& rtf) const {
  rtf += "\\deff0{\\fonttbl";
  for (std::size_t i = 0; i < fonts_.size(); ++i) {
    if (fonts_[i].empty()) continue;
    rtf += '{';
    AppendWord("f", static_cast<std::int32_t>(i), rtf);
    rtf += "\\fnil\\fcharset0 ";
    for (const char16_t unit : fonts_[i]) AppendNameUnit(unit, rtf);
    rtf += ";}";
  }
  if (hasBullets_) {
    rtf += '{';
    AppendWord("f", SymbolFont(), rtf);
    rtf += "\\fnil\\fcharset2 Symbol;}";
  }
  rtf += '}';
}

}  // namespace richtext::rtf
