#include "richtext/document/FormatNumbers.h"

#include <functional>
#include <initializer_list>

namespace richtext {
namespace {

std::size_t Mixed(std::initializer_list<std::size_t> parts) {
  std::size_t hash = 0;
  for (const std::size_t part : parts) hash = hash * 0x9E3779B97F4A7C15 + part + (hash >> 29);
  return hash;
}

template <class... Parts>
std::size_t HashOf(const Parts&... parts) {
  return Mixed({static_cast<std::size_t>(parts)...});
}

constexpr std::uint32_t None = 0xFF000000;  // no color

std::size_t HashOfBorder(const Border& border) {
  return HashOf(border.kind, border.width, border.color.value_or(None));
}

}  // namespace

std::size_t WholeFormatHash::operator()(const CharacterFormat& format) const {
  return HashOf(std::hash<std::string>()(format.fontName), std::hash<std::string>()(format.link),
                format.halfPoints, format.bold + 2 * format.italic + 4 * format.strikethrough,
                8 * format.hidden, format.underline, format.capitals, format.place,
                format.color.value_or(None), format.highlight.value_or(None));
}

std::size_t WholeFormatHash::operator()(const ParagraphFormat& format) const {
  std::size_t hash = HashOf(
      format.alignment, format.direction, format.leftIndent, format.rightIndent, format.firstLineIndent,
      format.spaceBefore, format.spaceAfter, format.autoBefore + 2 * format.autoAfter, format.lineSpacingRule,
      format.lineSpacing, format.list.kind, format.list.start, format.list.level, format.list.twin,
      format.ground.value_or(None), std::hash<std::u16string>()(format.list.before),
      std::hash<std::u16string>()(format.list.after));
  for (const TabStop& stop : format.tabs) hash = HashOf(hash, stop.position, stop.kind, stop.leader);
  return HashOf(hash, (*this)(format.borders));
}

std::size_t WholeFormatHash::operator()(const ParagraphBorders& borders) const {
  std::size_t hash = 0;
  for (const ParagraphBorder& border : borders) hash = HashOf(hash, HashOfBorder(border.line), border.space);
  return hash;
}

std::size_t WholeFormatHash::operator()(const RowFormat& format) const {
  std::size_t hash = HashOf(format.left, format.gap, format.height, format.place, format.isHead);
  for (const Border& border : format.borders) hash = HashOf(hash, HashOfBorder(border));
  for (const CellFormat& cell : format.cells) {
    hash = HashOf(hash, cell.right, cell.across, cell.down, cell.place, cell.ground.value_or(None));
    for (const Border& border : cell.borders) hash = HashOf(hash, HashOfBorder(border));
  }
  return hash;
}

}  // namespace richtext
