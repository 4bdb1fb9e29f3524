#include "richtext/characters/CodePages.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <mutex>
#include <vector>

#include "richtext/characters/CodePageTables.h"
#include "richtext/characters/PageConversion.h"
#include "richtext/characters/Unicode.h"

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

constexpr CharsetPage Charsets[] = {
    {0, 1252},   {2, SymbolPage}, {77, MacintoshPage}, {78, 932},   {79, 949},   {80, 936},   {81, 950},
    {88, 10029}, {89, 10007},     {128, 932},          {129, 949},  {130, 1361}, {134, 936},  {136, 950},
    {161, 1253}, {162, 1254},     {163, 1258},         {177, 1255}, {178, 1256}, {186, 1257}, {204, 1251},
    {222, 874},  {238, 1250},     {254, 437},          {255, 850},
};

struct Alias {
  std::int32_t number;
  std::int32_t page;
};

// Pages that differ from others in a few rare signs only.
constexpr Alias Aliases[] = {{10001, 932}, {10002, 950},  {10003, 949},
                             {10008, 936}, {20127, 1252}, {28591, 1252}};

// Pages of single bytes that are rare enough to be left to the C library.
constexpr std::int32_t RarePages[] = {737,   775,   852,   855,   857,   860,   861,   862,   863,   864,
                                      865,   866,   869,   10007, 10017, 10029, 10079, 20866, 21866, 28592,
                                      28593, 28594, 28595, 28596, 28597, 28598, 28599, 28603, 28605};

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
  if (pairs.number == 936) page.units[0x80] = 0x20AC;
  if (pairs.number == 932)
    for (std::size_t byte = 0xA1; byte <= 0xDF; ++byte)
      page.units[byte] = static_cast<char16_t>(0xFEC0 + byte);
  return page;
}

CodePage PageOfUtf8() {
  CodePage page = PageOfAscii(Utf8Page);
  for (std::size_t byte = 128; byte < 256; ++byte)
    page.units[byte] = byte >= 0xC2 && byte <= 0xF4 ? CodePage::LeadByte : Replacement;
  return page;
}

CodePage ConvertedPage(std::int32_t number) {
  CodePage page = PageOfAscii(number);
  const PageConversion conversion(number);
  for (std::size_t byte = 128; byte < 256; ++byte) {
    const auto character = static_cast<char>(byte);
    page.units[byte] = conversion.UnitOf({&character, 1});
  }
  return page;
}

const CodePage* FindRarePage(std::int32_t number) {
  static std::mutex mutex;
  static std::map<std::int32_t, CodePage> pages;
  if (std::find(std::begin(RarePages), std::end(RarePages), number) == std::end(RarePages)) return nullptr;
  const std::lock_guard lock(mutex);
  const auto known = pages.find(number);
  return &(known != pages.end() ? known : pages.emplace(number, ConvertedPage(number)).first)->second;
}

// All pairs of a page, made when the first one is met.
class PairTable {
 public:
  explicit PairTable(std::int32_t page) : page_(page) {}

  char16_t At(unsigned char lead, unsigned char trail) {
    std::call_once(made_, [this] { Make(); });
    return units_[lead * 256U + trail];
  }

 private:
  void Make() {
    units_.resize(65536, Replacement);
    const PageConversion conversion(page_);
    for (std::size_t lead = 0x81; lead < 0xFF; ++lead)
      for (std::size_t trail = 0x31; trail < 0xFF; ++trail) {
        const char bytes[] = {static_cast<char>(lead), static_cast<char>(trail)};
        units_[lead * 256 + trail] = conversion.UnitOf({bytes, 2});
      }
  }

  std::int32_t page_;
  std::once_flag made_;
  std::vector<char16_t> units_;
};

PairTable& PairsOf(std::int32_t page) {
  static std::array<PairTable, 5> tables{PairTable(932), PairTable(936), PairTable(949), PairTable(950),
                                         PairTable(1361)};
  for (std::size_t i = 0; i < DoubleBytePages.size(); ++i)
    if (DoubleBytePages[i].number == page) return tables[i];
  return tables[0];
}

const std::vector<CodePage>& AllPages() {
  static const std::vector<CodePage> pages = [] {
    std::vector<CodePage> made;
    made.reserve(std::size(UpperHalves) + std::size(DoubleBytePages) + 2);
    for (const UpperHalf& upper : UpperHalves) made.push_back(SingleBytePage(upper));
    for (const DoubleBytePage& pairs : DoubleBytePages) made.push_back(PageOfPairs(pairs));
    made.push_back(PageOfSymbols());
    made.push_back(PageOfUtf8());
    return made;
  }();
  return pages;
}

}  // namespace

const CodePage* FindCodePage(std::int32_t number) {
  for (const Alias& alias : Aliases)
    if (alias.number == number) number = alias.page;
  for (const CodePage& page : AllPages())
    if (page.number == number) return &page;
  return FindRarePage(number);
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

char16_t DoubleByteUnit(const CodePage& page, unsigned char lead, unsigned char trail) {
  return PairsOf(page.number).At(lead, trail);
}

}  // namespace richtext
