#include "richtext/DocumentBuilder.h"

#include <initializer_list>
#include <utility>

#include "richtext/Unicode.h"

namespace richtext {
namespace {

std::size_t HashOf(std::initializer_list<std::uint32_t> parts) {
  std::uint64_t hash = 0;
  for (const std::uint32_t part : parts) {
    hash = (hash ^ part) * 0x9E3779B97F4A7C15U;
    hash ^= hash >> 32;
  }
  return static_cast<std::size_t>(hash);
}

}  // namespace

std::size_t FormatHash::operator()(const FormatKey& key) const {
  return HashOf({key.fontName, static_cast<std::uint32_t>(key.halfPoints),
                 static_cast<std::uint32_t>(key.color), key.flags});
}

std::size_t FormatHash::operator()(const ParagraphFormat& format) const {
  return HashOf({static_cast<std::uint32_t>(format.alignment), static_cast<std::uint32_t>(format.leftIndent),
                 static_cast<std::uint32_t>(format.rightIndent),
                 static_cast<std::uint32_t>(format.firstLineIndent)});
}

std::uint32_t DocumentBuilder::FormatNumber(const FormatKey& key,
                                            const std::function<CharacterFormat()>& make) {
  const auto [number, isNew] = formats_.NumberOf(key);
  if (isNew) document_.formats.push_back(make());
  return number;
}

std::uint32_t DocumentBuilder::ParagraphFormatNumber(const ParagraphFormat& format) {
  const auto [number, isNew] = paragraphFormats_.NumberOf(format);
  if (isNew) document_.paragraphFormats.push_back(format);
  return number;
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

void DocumentBuilder::AddPicture(Picture picture, std::uint32_t format) {
  document_.pictures.push_back(std::move(picture));
  document_.text += PictureMark;
  ClaimText(format);
}

void DocumentBuilder::EndParagraph(std::uint32_t paragraphFormat, std::uint32_t markFormat) {
  const auto length = static_cast<std::uint32_t>(claimed_ - paragraphStart_);
  document_.paragraphs.push_back({length, paragraphFormat, markFormat});
  paragraphStart_ = claimed_;
}

}  // namespace richtext
