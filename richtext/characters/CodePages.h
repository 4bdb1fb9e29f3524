// The code pages in which RTF writes the bytes of its text.
//
// The room turns bytes and numbers of older conventions into UTF-16 and back: code pages, the C library's
// conversion behind those of double bytes (PageConversion.h), fonts whose bytes are signs (SymbolFonts.h),
// and what Unicode itself needs to be told by (Unicode.h). What has no character comes out as one that says
// so, never as nothing. The hard part is the pages of pairs, where the meaning of a byte hangs on the one
// before it, which the reader of RTF may have met in another group.
#pragma once

#include <array>
#include <cstdint>

namespace richtext {

constexpr std::int32_t WesternPage = 1252;
constexpr std::int32_t MacintoshPage = 10000;
constexpr std::int32_t SymbolPage = 42;
constexpr std::int32_t Utf8Page = 65001;

// What each byte means. Two entries are no characters: a byte that is passed over, and the first byte of
// several.
struct CodePage {
  static constexpr char16_t Nothing = 0xFFFF;
  static constexpr char16_t LeadByte = 0xFFFE;

  std::int32_t number = 0;
  std::array<char16_t, 256> units{};
};

// Nothing when the page is not known. The pointers stay good as long as the program runs.
const CodePage* FindCodePage(std::int32_t number);
const CodePage& WesternCodePage();

// The page of a font's \fcharset; 0 when the charset leaves it to the document.
std::int32_t CodePageOfCharset(std::int32_t charset);

// Whether a byte can follow a lead byte, in whichever page.
constexpr bool IsTrailByte(unsigned char byte) {
  return byte > 0x30 && byte != 0x7F && byte != 0xFF;
}

// The character of a lead byte and the byte after it, in a page of such pairs.
char16_t DoubleByteUnit(const CodePage& page, unsigned char lead, unsigned char trail);

}  // namespace richtext
