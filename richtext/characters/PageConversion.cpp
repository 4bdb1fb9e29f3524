#include "richtext/characters/PageConversion.h"

#include <array>
#include <cstdint>
#include <string>

#include "richtext/characters/Unicode.h"

namespace richtext {
namespace {

struct NamedPage {
  std::int32_t page;
  const char* name;
};

// Pages that the library does not know by their number.
constexpr NamedPage NamedPages[] = {
    {10007, "MAC-CYRILLIC"}, {10017, "MAC-UK"}, {10029, "MAC-CENTRALEUROPE"},
    {10079, "MAC-IS"},       {20866, "KOI8-R"}, {21866, "KOI8-U"},
};

std::string NameOf(std::int32_t page) {
  for (const NamedPage& named : NamedPages)
    if (named.page == page) return named.name;
  if (page >= 28591 && page <= 28605) return "ISO-8859-" + std::to_string(page - 28590);
  return "CP" + std::to_string(page);
}

}  // namespace

PageConversion::PageConversion(std::int32_t page)
    : conversion_(iconv_open("UTF-16LE", NameOf(page).c_str())) {}

PageConversion::~PageConversion() {
  if (IsKnown()) iconv_close(conversion_);
}

bool PageConversion::IsKnown() const {
  return reinterpret_cast<std::intptr_t>(conversion_) != -1;
}

char16_t PageConversion::UnitOf(std::string_view bytes) const {
  if (!IsKnown()) return Replacement;
  std::array<char, 8> made{};
  char* from = const_cast<char*>(bytes.data());  // which the library does not change
  std::size_t left = bytes.size();
  char* to = made.data();
  std::size_t room = made.size();
  iconv(conversion_, nullptr, nullptr, nullptr, nullptr);
  const bool whole = iconv(conversion_, &from, &left, &to, &room) != static_cast<std::size_t>(-1);
  if (!whole || room != made.size() - 2) return Replacement;
  const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(made[at]); };
  const auto unit = static_cast<char16_t>(byte(0) | byte(1) << 8);
  return IsSurrogate(unit) || IsNoncharacter(unit) ? Replacement : unit;
}

}  // namespace richtext
