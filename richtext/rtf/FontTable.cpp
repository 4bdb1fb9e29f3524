#include "richtext/rtf/FontTable.h"

#include <utility>

#include "richtext/characters/SymbolFonts.h"
#include "richtext/characters/Unicode.h"
#include "richtext/document/Limits.h"
#include "richtext/rtf/GroupState.h"

namespace richtext::rtf {
namespace {

const FontEntry NoFont;

// Room for outer blanks, which do not count. The rest of a longer name is passed over.
constexpr std::size_t MaxNameRead = 4 * MaxFontName;

}  // namespace

FontTable::FontTable() {
  NameNumber({});
}

void FontTable::BeginEntry(std::int32_t number, std::size_t depth) {
  EndEntry();
  open_ = true;
  number_ = number;
  depth_ = depth;
  page_ = nullptr;
}

void FontTable::SetCharset(std::int32_t charset) {
  if (const std::int32_t page = CodePageOfCharset(charset)) SetCodePage(page);
}

void FontTable::SetCodePage(std::int32_t page) {
  if (const CodePage* known = FindCodePage(page)) page_ = known;
}

void FontTable::AppendText(std::string_view bytes, const CodePage& documentPage) {
  while (!bytes.empty()) {
    const std::size_t end = bytes.find(';');
    for (const char byte : bytes.substr(0, end).substr(0, MaxNameRead)) AppendByte(byte, documentPage);
    if (end == std::string_view::npos) return;
    EndEntry();
    bytes.remove_prefix(end + 1);
  }
}

// The name of a symbol font is written in letters all the same.
void FontTable::AppendByte(char byte, const CodePage& documentPage) {
  if (!open_ || name_.size() >= MaxNameRead) return;
  const CodePage& page = page_ == nullptr ? documentPage : *page_;
  decoder_.AppendBytes({&byte, 1}, page.number == SymbolPage ? WesternCodePage() : page, name_);
}

void FontTable::AppendUnicode(std::int32_t number) {
  if (open_ && name_.size() < MaxNameRead) decoder_.AppendUnicode(number, name_);
}

void FontTable::EndGroup(std::size_t depth) {
  if (depth <= depth_) EndEntry();
}

void FontTable::EndEntry() {
  if (!open_) return;
  decoder_.EndText(name_);
  if (fonts_.size() < MaxTableEntries) {
    std::string name = ToUtf8(FittingFontName(name_));
    if (page_ != nullptr && page_->number == SymbolPage) page_ = &SignsOfFont(name);
    fonts_.push_back({NameNumber(std::move(name)), page_});
    indices_[number_] = static_cast<std::int32_t>(fonts_.size() - 1);
  }
  open_ = false;
  name_.clear();
}

std::uint32_t FontTable::NameNumber(std::string name) {
  const auto [found, isNew] = nameNumbers_.try_emplace(name, static_cast<std::uint32_t>(names_.size()));
  if (isNew) names_.push_back(std::move(name));
  return found->second;
}

std::int32_t FontTable::Find(std::int32_t number) const {
  const auto found = indices_.find(number);
  return found == indices_.end() ? DefaultFontIndex : found->second;
}

const FontEntry& FontTable::At(std::int32_t index) const {
  if (index == DefaultFontIndex) index = Find(defaultNumber_);
  return index == DefaultFontIndex ? NoFont : fonts_[static_cast<std::size_t>(index)];
}

}  // namespace richtext::rtf
