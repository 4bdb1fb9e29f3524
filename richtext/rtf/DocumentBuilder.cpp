#include "richtext/rtf/DocumentBuilder.h"

#include <initializer_list>
#include <utility>

#include "richtext/characters/Unicode.h"

namespace richtext::rtf {
namespace {

class Hash {
 public:
  void Add(std::uint32_t part) {
    value_ = (value_ ^ part) * 0x9E3779B97F4A7C15U;
    value_ ^= value_ >> 32;
  }
  void AddAll(std::initializer_list<std::int32_t> parts) {
    for (const std::int32_t part : parts) Add(static_cast<std::uint32_t>(part));
  }
  std::size_t Value() const { return static_cast<std::size_t>(value_); }

 private:
  std::uint64_t value_ = 0;
};

std::size_t HashOf(const ParagraphFormat& format) {
  Hash hash;
  hash.AddAll({static_cast<std::int32_t>(format.alignment), static_cast<std::int32_t>(format.direction),
               format.leftIndent, format.rightIndent, format.firstLineIndent, format.spaceBefore,
               format.spaceAfter, format.autoBefore + 2 * format.autoAfter,
               static_cast<std::int32_t>(format.lineSpacingRule), format.lineSpacing,
               static_cast<std::int32_t>(format.list.kind), format.list.start, format.list.level,
               format.list.twin, static_cast<std::int32_t>(format.ground.value_or(0xFF000000))});
  for (const TabStop& tab : format.tabs)
    hash.AddAll({tab.position, static_cast<std::int32_t>(tab.kind), static_cast<std::int32_t>(tab.leader)});
  for (const std::u16string& text : {format.list.before, format.list.after})
    for (const char16_t unit : text) hash.Add(unit);
  if (format.borders != ParagraphBorders())
    hash.Add(static_cast<std::uint32_t>(WholeFormatHash()(format.borders)));
  return hash.Value();
}

}  // namespace

std::size_t FormatKeyHash::operator()(const FormatKey& key) const {
  const auto pair = [](std::uint32_t high, std::uint32_t low) { return std::uint64_t{high} << 32 | low; };
  const std::uint64_t hash =
      (pair(key.fontName, static_cast<std::uint32_t>(key.halfPoints)) * 0x9E3779B97F4A7C15U) ^
      (pair(static_cast<std::uint32_t>(key.color), key.flags) * 0xC2B2AE3D27D4EB4FU) ^
      (pair(static_cast<std::uint32_t>(key.highlight), key.link) * 0xD6E8FEB86659FD93U);
  return static_cast<std::size_t>(hash ^ (hash >> 32));
}

std::uint32_t DocumentBuilder::FormatNumber(const FormatKey& key,
                                            const std::function<CharacterFormat()>& make) {
  if (const auto known = formats_.find(key); known != formats_.end()) return lastFormat_ = known->second;
  if (formats_.size() == MaxFormats || formatText_ > MaxFormatText) return lastFormat_;
  lastFormat_ = static_cast<std::uint32_t>(formats_.size());
  formats_.emplace(key, lastFormat_);
  const CharacterFormat& made = document_.formats.emplace_back(make());
  formatText_ += made.fontName.size() + made.link.size();
  return lastFormat_;
}

std::uint32_t DocumentBuilder::ParagraphFormatNumber(const ParagraphFormat& format) {
  std::vector<ParagraphFormat>& formats = document_.paragraphFormats;
  const std::size_t hash = HashOf(format);
  const auto [first, last] = paragraphFormats_.equal_range(hash);
  for (auto known = first; known != last; ++known)
    if (formats[known->second] == format) return lastParagraphFormat_ = known->second;
  if (formats.size() == MaxFormats) return lastParagraphFormat_;
  lastParagraphFormat_ = static_cast<std::uint32_t>(formats.size());
  paragraphFormats_.emplace(hash, lastParagraphFormat_);
  formats.push_back(format);
  return lastParagraphFormat_;
}

void DocumentBuilder::ClaimText(std::uint32_t format) {
  const auto length = static_cast<std::uint32_t>(document_.text.size() - claimed_);
  if (length == 0) return;
  if (HasOpenText() && document_.runs.back().format == format) {
    document_.runs.back().length += length;
  } else {
    document_.runs.push_back({length, format});
  }
  claimed_ = document_.text.size();
}

void DocumentBuilder::AddPicture(Picture picture) {
  document_.pictures.push_back(std::move(picture));
  document_.text += PictureMark;
}

void DocumentBuilder::EndParagraph(std::uint32_t paragraphFormat, std::uint32_t markFormat, Place place) {
  const auto length = static_cast<std::uint32_t>(claimed_ - paragraphStart_);
  document_.paragraphs.push_back({length, paragraphFormat, markFormat, place});
  paragraphStart_ = claimed_;
  if (place == Place::Text) return;
  ++inCell_;
  if (place != Place::CellEnd) return;
  ++cells_;
  lastCell_ = document_.paragraphs.size() - 1;
  inCell_ = 0;
}

void DocumentBuilder::EndRow(const RowFormat& format) {
  std::vector<Paragraph>& paragraphs = document_.paragraphs;
  for (auto left = paragraphs.end() - static_cast<std::ptrdiff_t>(inCell_); left != paragraphs.end(); ++left)
    left->place = Place::Text;
  inCell_ = 0;
  if (cells_ == 0) return;
  paragraphs[lastCell_].place = Place::RowEnd;
  document_.rows.push_back(rowFormats_(FittingRow(format, cells_)));
  cells_ = 0;
}

bool DocumentBuilder::CanHoldOpenText() const {
  constexpr std::size_t MostLetters = 2000, MostRuns = 50;
  const std::u16string_view open = std::u16string_view(document_.text).substr(paragraphStart_);
  if (open.size() > MostLetters || open.find(PictureMark) != open.npos) return false;
  std::size_t runs = 0, length = 0;
  for (auto run = document_.runs.rbegin(); length < open.size() && runs <= MostRuns; ++run, ++runs)
    length += run->length;
  return runs <= MostRuns;
}

DocumentBuilder::OpenText DocumentBuilder::TakeOpenText() {
  OpenText open;
  wasHeld_ = true;
  open.text = document_.text.substr(paragraphStart_);
  auto first = document_.runs.end();
  for (std::size_t length = open.text.size(); length > 0; length -= first->length) --first;
  open.runs.assign(first, document_.runs.end());
  document_.runs.erase(first, document_.runs.end());
  document_.text.resize(paragraphStart_);
  claimed_ = paragraphStart_;
  return open;
}

void DocumentBuilder::PutBack(const OpenText& held) {
  document_.text += held.text;
  document_.runs.insert(document_.runs.end(), held.runs.begin(), held.runs.end());
  claimed_ = document_.text.size();
}

Document DocumentBuilder::Take() {
  if (wasHeld_) NumberFormatsAgain();
  return std::move(document_);
}

void DocumentBuilder::NumberFormatsAgain() {
  constexpr std::uint32_t None = UINT32_MAX;
  std::vector<std::uint32_t> numbers(document_.formats.size(), None);
  std::vector<CharacterFormat> inOrder;
  const auto use = [&](std::uint32_t& format) {
    std::uint32_t& number = numbers[format];
    if (number == None) {
      number = static_cast<std::uint32_t>(inOrder.size());
      inOrder.push_back(std::move(document_.formats[format]));
    }
    format = number;
  };
  auto run = document_.runs.begin();
  for (Paragraph& paragraph : document_.paragraphs) {
    for (std::uint32_t at = 0; at < paragraph.length; at += run++->length) use(run->format);
    use(paragraph.markFormat);
  }
  document_.formats = std::move(inOrder);
}

}  // namespace richtext::rtf
