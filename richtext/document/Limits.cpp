#include "richtext/document/Limits.h"

#include "richtext/characters/Unicode.h"

namespace richtext {
namespace {

template <typename Text>
Text Trimmed(Text text) {
  const auto isBlank = [](auto unit) { return unit >= 0 && unit <= ' '; };
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

// The first `length` units, without half a surrogate pair at the end.
std::u16string_view Cut(std::u16string_view text, std::size_t length) {
  text = text.substr(0, length);
  if (!text.empty() && IsHighSurrogate(text.back())) text.remove_suffix(1);
  return text;
}

std::u16string WithoutControls(std::u16string_view text) {
  std::u16string clean;
  for (const char16_t unit : text)
    if (unit >= u' ') clean += unit;
  return clean;
}

}  // namespace

std::u16string FittingFontName(std::u16string_view name) {
  return std::u16string(Trimmed(std::u16string_view(WithoutControls(Cut(Trimmed(name), MaxFontName)))));
}

std::u16string FittingListText(std::u16string_view text) {
  return std::u16string(Cut(WithoutControls(text), MaxListText));
}

std::string FittingLink(std::string_view link) {
  std::string clean;
  for (const char byte : link)
    if (static_cast<unsigned char>(byte) >= 0x20) clean += byte;
  const std::string_view trimmed = Trimmed(std::string_view(clean));
  return trimmed.size() > MaxLink ? std::string() : std::string(trimmed);
}

}  // namespace richtext
