// The font table: numbers to names and code pages.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "richtext/rtf/TextDecoder.h"

namespace richtext::rtf {

struct FontEntry {
  std::uint32_t name = 0;          // number of the name: fonts of one name share it
  const CodePage* page = nullptr;  // nothing: the document's
};

class FontTable {
 public:
  FontTable();

  // Reading the table, in the order of the document. `depth` is that of the group that the entry stands in;
  // an entry ends at its semicolon, where its group ends, or where the next one begins.
  void BeginEntry(std::int32_t number, std::size_t depth);
  void SetCharset(std::int32_t charset);
  void SetCodePage(std::int32_t page);
  void AppendText(std::string_view bytes, const CodePage& documentPage);
  void AppendByte(char byte, const CodePage& documentPage);
  void AppendUnicode(std::int32_t number);
  void EndGroup(std::size_t depth);

  // The font that stands for a missing one and for none.
  void SetDefault(std::int32_t number) { defaultNumber_ = number; }

  // The index of a \f; DefaultFontIndex when there is no such font.
  std::int32_t Find(std::int32_t number) const;
  // The font at an index, DefaultFontIndex included. A table without the default font: one without a name.
  const FontEntry& At(std::int32_t index) const;
  const std::string& Name(std::uint32_t name) const { return names_[name]; }

 private:
  void EndEntry();
  std::uint32_t NameNumber(std::string name);

  std::vector<FontEntry> fonts_;
  std::unordered_map<std::int32_t, std::int32_t> indices_;  // by \f number
  std::vector<std::string> names_;                          // the first is empty
  std::unordered_map<std::string, std::uint32_t> nameNumbers_;
  std::int32_t defaultNumber_ = 0;

  // The entry that is being read.
  bool open_ = false;
  std::int32_t number_ = 0;
  std::size_t depth_ = 0;
  const CodePage* page_ = nullptr;
  std::u16string name_;
  TextDecoder decoder_;
};

}  // namespace richtext::rtf
