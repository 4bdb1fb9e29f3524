// The tables at the head of a written document: fonts and colours, numbered by first use, so that equal
// documents are written in equal bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "richtext/document/Document.h"

namespace richtext::rtf {

class Tables {
 public:
  explicit Tables(const Document& document);

  // Whether there is a table of fonts. A document that names none leaves them to its reader.
  bool HasFonts() const { return hasBullets_ || fonts_.size() > 1 || !HasNameless(); }
  // Whether text without a named font has the number 0, which is in force where none is told.
  bool HasNameless() const { return !fonts_.empty() && fonts_[0].empty(); }
  // The \f and \cf numbers of one of the document's formats, which the document must use. \cf0 is automatic.
  std::size_t Font(std::uint32_t format) const { return fontOfFormat_[format]; }
  std::size_t Color(std::uint32_t format) const { return colorOfFormat_[format]; }
  // \highlight0 is none.
  std::size_t Highlight(std::uint32_t format) const { return highlightOfFormat_[format]; }
  // The number of one of the colors of the document's paragraphs and tables; 0 is none.
  std::int32_t NumberOf(const std::optional<std::uint32_t>& color) const {
    return color ? static_cast<std::int32_t>(colorPlaces_.at(*color & 0xFFFFFF)) + 1 : 0;
  }
  // The \f number of the symbol font that bullets are written in; the table has it when there are any.
  std::int32_t SymbolFont() const { return static_cast<std::int32_t>(fonts_.size()); }

  void AppendTo(std::string& rtf) const;

 private:
  std::size_t Place(const std::optional<std::uint32_t>& color);
  void PlaceColorsOf(const RowFormat& row);
  void AppendFonts(std::string& rtf) const;

  std::vector<std::u16string> fonts_;
  std::vector<std::uint32_t> colors_;  // the first is \cf1
  std::unordered_map<std::uint32_t, std::size_t> colorPlaces_;
  std::vector<std::size_t> fontOfFormat_;
  std::vector<std::size_t> colorOfFormat_;
  std::vector<std::size_t> highlightOfFormat_;
  bool hasBullets_ = false;
};

}  // namespace richtext::rtf
