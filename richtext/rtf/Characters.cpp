#include "richtext/rtf/Characters.h"

#include <optional>

namespace richtext::rtf {
namespace {

std::optional<std::uint32_t> ColorOf(std::int32_t color) {
  if (color == AutomaticColor) return std::nullopt;
  return static_cast<std::uint32_t>(color);
}

std::int32_t ShownBehind(const CharacterState& state) {
  return state.highlight != AutomaticColor ? state.highlight : state.background;
}

}  // namespace

FormatKey KeyOf(const CharacterState& state, const FontTable& fonts) {
  const bool struck = state.strikethrough || state.doubleStrikethrough;
  const std::uint32_t flags = (state.bold ? 1U : 0U) | (state.italic ? 2U : 0U) | (struck ? 4U : 0U) |
                              (state.hidden ? 8U : 0U) | static_cast<std::uint32_t>(state.underline) << 8 |
                              static_cast<std::uint32_t>(state.capitals) << 16 |
                              static_cast<std::uint32_t>(state.place) << 24;
  return {fonts.At(state.font).name, state.halfPoints, state.color, ShownBehind(state), state.link, flags};
}

CharacterFormat FormatOf(const CharacterState& state, const FontTable& fonts, const Links& links) {
  CharacterFormat format;
  format.fontName = fonts.Name(fonts.At(state.font).name);
  format.halfPoints = state.halfPoints;
  format.bold = state.bold;
  format.italic = state.italic;
  format.strikethrough = state.strikethrough || state.doubleStrikethrough;
  format.hidden = state.hidden;
  format.underline = state.underline;
  format.capitals = state.capitals;
  format.place = state.place;
  format.color = ColorOf(state.color);
  format.highlight = ColorOf(ShownBehind(state));
  format.link = links.At(state.link);
  return format;
}

}  // namespace richtext::rtf
