#include "richtext/CodePages.h"

#include <vector>

#include "richtext/CodePageTables.h"
#include "richtext/Unicode.h"

namespace richtext {
namespace {

struct ByteRange {
  unsigned char first;
  unsigned char last;
};

struct DoubleBytePage {
  std::int32_t number;
  std::array<ByteRange, 3> leads;  // first 0: none
};

constexpr std::array<DoubleBytePage, 5> DoubleBytePages{{
    {932, {{{0x81, 0x9F}, {0xE0, 0xFC}, {0, 0}}}},
    {936, {{{0x81, 0xFE}, {0, 0}, {0, 0}}}},
    {949, {{{0x81, 0xFE}, {0, 0}, {0, 0}}}},
    {950, {{{0x81, 0xFE}, {0, 0}, {0, 0}}}},
    {1361, {{{0x84, 0xD3}, {0xD8, 0xDE}, {0xE0, 0xF9}}}},
}};

struct CharsetPage {
  std::int32_t charset;
  std::int32_t page;
};

constexpr std::array<CharsetPage, 19> Charsets{{
    {0, 1252},   {2, SymbolPage}, {77, MacintoshPage}, {128, 932},  {129, 949},  {130, 1361}, {134, 936},
    {136, 950},  {161, 1253},     {162, 1254},         {163, 1258}, {177, 1255}, {178, 1256}, {186, 1257},
    {204, 1251}, {222, 874},      {238, 1250},         {254, 437},  {255, 850},
}};

// The lower half, the same in every page: of the control characters only the blanks mean something in text.
CodePage PageOfAscii(std::int32_t number) {
  CodePage page{.number = number};
  for (char16_t byte = 0; byte < 128; ++byte) page.units[byte] = byte < 0x20 ? CodePage::Nothing : byte;
  page.units[0x00] = u' ';
  page.units[0x09] = u'\t';
  page.units[0x0B] = page.units[0x0C] = LineBreak;
  return page;
}

CodePage SingleBytePage(const UpperHalf& upper) {
  CodePage page = PageOfAscii(upper.number);
  for (std::size_t i = 0; i < upper.units.size(); ++i) page.units[128 + i] = upper.units[i];
  return page;
}

// Symbol fonts have their signs at U+F000 and their byte.
CodePage PageOfSymbols() {
  CodePage page = PageOfAscii(SymbolPage);
  for (char16_t byte = 0x21; byte < 256; ++byte) page.units[byte] = static_cast<char16_t>(0xF000 + byte);
  return page;
}

CodePage PageOfPairs(const DoubleBytePage& pairs) {
  CodePage page = PageOfAscii(pairs.number);
  for (std::size_t byte = 128; byte < 256; ++byte) page.units[byte] = Replacement;
  for (const ByteRange& range : pairs.leads)
    for (std::size_t byte = range.first; range.first != 0 && byte <= range.last; ++byte)
      page.units[byte] = CodePage::LeadByte;
  if (pairs.number == 932)
    for (std::size_t byte = 0xA1; byte <= 0xDF; ++byte)
      page.units[byte] = static_cast<char16_t>(0xFEC0 + byte);
  return page;
}

const std::vector<CodePage>& AllPages() {
  static const std::vector<CodePage> pages = [] {
    std::vector<CodePage> made;
    for (const UpperHalf& upper : UpperHalves) made.push_back(SingleBytePage(upper));
    for (const DoubleBytePage& pairs : DoubleBytePages) made.push_back(PageOfPairs(pairs));
    made.push_back(PageOfSymbols());
    return made;
  }();
  return pages;
}

}  // namespace

const CodePage* FindCodePage(std::int32_t number) {
  for (const CodePage& page : AllPages())
    if (page.number == number) return &page;
  return nullptr;
}

const CodePage& WesternCodePage() {
  static const CodePage& western = *FindCodePage(WesternPage);
  return western;
}

std::int32_t CodePageOfCharset(std::int32_t charset) {
  for (const CharsetPage& row : Charsets)
    if (row.charset == charset) return row.page;
  return 0;
}

char16_t DoubleByteUnit(const CodePage& /*page*/, unsigned char /*lead*/, unsigned char /*trail*/) {
  return Replacement;
}

}  // namespace richtext
