#include "richtext/Limits.h"

#include "richtext/Unicode.h"

namespace richtext {
namespace {

std::u16string_view Trimmed(std::u16string_view name) {
  while (!name.empty() && name.front() <= u' ') name.remove_prefix(1);
  while (!name.empty() && name.back() <= u' ') name.remove_suffix(1);
  return name;
}

// The first `length` units, without half a surrogate pair at the end.
std::u16string_view Cut(std::u16string_view name, std::size_t length) {
  name = name.substr(0, length);
  if (!name.empty() && IsHighSurrogate(name.back())) name.remove_suffix(1);
  return name;
}

}  // namespace

std::u16string FittingFontName(std::u16string_view name) {
  std::u16string clean;
  for (const char16_t unit : Cut(Trimmed(name), MaxFontName))
    if (unit >= u' ') clean += unit;
  return std::u16string(Trimmed(clean));
}

}  // namespace richtext
