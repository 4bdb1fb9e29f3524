#include "richtext/document/ListLabel.h"

#include <algorithm>
#include <cstddef>

#include "richtext/characters/SymbolFonts.h"
#include "richtext/characters/Unicode.h"
#include "richtext/document/Limits.h"

namespace richtext {
namespace {

constexpr char16_t MiddleDot = 0xB7;  // a bullet whose font was lost

constexpr char16_t BlankSign = 0xF020;  // of any font of signs

constexpr std::u16string_view Bullets =
    u"\u2022\u00B7*-\u2013\u2014\u2023\u2043\u2192\u2219\u25A0\u25A1\u25AA\u25AB\u25B6\u25BA\u25C6\u25C7"
    u"\u25CB\u25CF\u25D8\u25E6\u25FB\u2605\u2606\u2666\u2713\u2714\u2717\u2751\u2756\u27A2\u27A4";

constexpr bool IsPrivate(char16_t unit) {
  return unit >= 0xE000 && unit <= 0xF8FF;
}

constexpr bool IsDigit(char16_t unit) {
  return unit >= u'0' && unit <= u'9';
}
constexpr bool IsLower(char16_t unit) {
  return unit >= u'a' && unit <= u'z';
}
constexpr bool IsUpper(char16_t unit) {
  return unit >= u'A' && unit <= u'Z';
}
constexpr bool IsCounting(char16_t unit) {
  return IsDigit(unit) || IsLower(unit) || IsUpper(unit);
}

std::u16string_view Trimmed(std::u16string_view text) {
  while (!text.empty() && text.front() <= u' ') text.remove_prefix(1);
  while (!text.empty() && text.back() <= u' ') text.remove_suffix(1);
  return text;
}

std::u16string Lowered(std::u16string_view text) {
  std::u16string lowered(text);
  for (char16_t& unit : lowered)
    if (IsUpper(unit)) unit = static_cast<char16_t>(unit + 32);
  return lowered;
}

std::u16string Raised(std::u16string text) {
  for (char16_t& unit : text) unit = static_cast<char16_t>(unit - 32);
  return text;
}

std::u16string Decimal(std::int32_t number) {
  return ToUtf16(std::to_string(number));
}

std::u16string Roman(std::int32_t number) {
  struct Step {
    std::int32_t value;
    std::u16string_view digits;
  };
  constexpr Step Steps[] = {{1000, u"m"}, {900, u"cm"}, {500, u"d"}, {400, u"cd"}, {100, u"c"},
                            {90, u"xc"},  {50, u"l"},   {40, u"xl"}, {10, u"x"},   {9, u"ix"},
                            {5, u"v"},    {4, u"iv"},   {1, u"i"}};
  if (number < 1 || number > 4999) return Decimal(number);
  std::u16string text;
  for (const Step& step : Steps)
    for (; number >= step.value; number -= step.value) text += step.digits;
  return text;
}

// a to z, aa, ab and so on.
std::u16string Letters(std::int32_t number) {
  if (number < 1) return Decimal(number);
  std::u16string text;
  for (; number > 0; number = (number - 1) / 26)
    text.insert(text.begin(), static_cast<char16_t>(u'a' + (number - 1) % 26));
  return text;
}

}  // namespace

std::u16string NumberText(ListKind kind, std::int32_t number) {
  const bool written = number >= 1 && number <= 4999;
  switch (kind) {
    case ListKind::LowerLetter:
      return Letters(number);
    case ListKind::UpperLetter:
      return number < 1 ? Decimal(number) : Raised(Letters(number));
    case ListKind::LowerRoman:
      return Roman(number);
    case ListKind::UpperRoman:
      return written ? Raised(Roman(number)) : Decimal(number);
    default:
      return Decimal(number);
  }
}

namespace {

// The number that the digits or letters tell in a way of counting; 0 when they are none of it.
std::int32_t NumberOf(std::u16string_view counted, ListKind kind) {
  if (counted.size() > 8) return 0;
  std::int32_t number = 0;
  if (kind == ListKind::Decimal) {
    for (const char16_t digit : counted)
      number = IsDigit(digit) ? number * 10 + (digit - u'0') : -1'000'000'000;
    return std::clamp(number, 0, MaxListNumber);
  }
  if (kind == ListKind::LowerLetter) return counted.size() == 1 ? counted[0] - u'a' + 1 : 0;
  for (number = 1; number < 200; ++number)
    if (Roman(number) == counted) return number;
  return 0;
}

constexpr ListKind UpperOf(ListKind kind) {
  return kind == ListKind::LowerRoman ? ListKind::UpperRoman : ListKind::UpperLetter;
}

// "i" begins a Roman list; other single letters are letters.
std::optional<ListFormat> ListOfNumber(std::u16string_view counted) {
  ListFormat list;
  if (std::all_of(counted.begin(), counted.end(), IsDigit)) {
    list.kind = ListKind::Decimal;
    list.start = NumberOf(counted, list.kind);
    return list;
  }
  const bool upper = std::all_of(counted.begin(), counted.end(), IsUpper);
  if (!upper && !std::all_of(counted.begin(), counted.end(), IsLower)) return std::nullopt;
  const std::u16string lowered = Lowered(counted);
  list.kind = lowered.size() == 1 && lowered != u"i" ? ListKind::LowerLetter : ListKind::LowerRoman;
  list.start = NumberOf(lowered, list.kind);
  if (list.start == 0) return std::nullopt;
  if (upper) list.kind = UpperOf(list.kind);
  return list;
}

}  // namespace

char16_t ShownBullet(char16_t unit) {
  if (const char16_t sign = SignAnywhere(unit); sign != CodePage::Nothing) return sign;
  if (unit == BlankSign) return u' ';
  return IsPrivate(unit) ? Bullet : unit;
}

ListFormat BulletList(std::u16string_view text) {
  ListFormat list;
  list.kind = ListKind::Bullet;
  const std::u16string clean = FittingListText(Trimmed(text));
  list.before = Trimmed(clean);
  if (list.before.empty() && !text.empty()) list.before.assign(1, u' ');
  if (list.before.empty() || list.before == std::u16string_view(&MiddleDot, 1)) list.before.assign(1, Bullet);
  for (char16_t& unit : list.before) unit = ShownBullet(unit);
  return list;
}

ListFormat FittingList(const ListFormat& list) {
  if (list.kind == ListKind::None) return {};
  ListFormat fitting = list;
  if (list.kind == ListKind::Bullet) {
    fitting = BulletList(list.before);
  } else {
    fitting.start = std::clamp(list.start, 0, MaxListNumber);
    fitting.before = FittingListText(list.before);
    fitting.after = FittingListText(list.after);
  }
  fitting.level = std::clamp(list.level, 0, MaxListLevel);
  return fitting;
}

std::optional<ListFormat> ListOfLabel(std::u16string_view label) {
  label = Trimmed(label);
  if (label.empty()) return std::nullopt;
  if (IsPrivate(label[0]) || label == u"o" || Bullets.find(label[0]) != std::u16string_view::npos)
    return BulletList(label);
  const auto last = std::find_if(label.rbegin(), label.rend(), IsCounting);
  const auto first = std::find_if_not(last, label.rend(), IsCounting);
  const auto from = static_cast<std::size_t>(label.rend() - first);
  const auto to = static_cast<std::size_t>(label.rend() - last);
  if (from == to) return std::nullopt;
  std::optional<ListFormat> list = ListOfNumber(label.substr(from, to - from));
  if (!list) return std::nullopt;
  list->before = label.substr(0, from);
  list->after = label.substr(to);
  return FittingList(*list);
}

std::u16string LabelText(const ListFormat& list, std::int32_t number) {
  if (list.kind == ListKind::Bullet || list.kind == ListKind::None) return list.before;
  return list.before + NumberText(list.kind, number) + list.after;
}

}  // namespace richtext
