// Builds a document from text and formats in reading order.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "richtext/document/Document.h"
#include "richtext/document/FormatNumbers.h"
#include "richtext/document/Limits.h"

namespace richtext::rtf {

// A character format in few bytes, so that looking it up is cheap.
struct FormatKey {
  std::uint32_t fontName = 0;  // the caller's number of the name
  std::int32_t halfPoints = 0;
  std::int32_t color = 0;
  std::int32_t highlight = 0;
  std::uint32_t link = 0;  // the caller's number likewise
  std::uint32_t flags = 0;
  bool operator==(const FormatKey&) const = default;
};

struct FormatKeyHash {
  std::size_t operator()(const FormatKey& key) const;
};

// Formats are numbered in the order of their first use. When Limits.h has no room for more, the number given
// last stands for every new one.
class DocumentBuilder {
 public:
  // The number of a format in the document; `make` gives the format when its key is new.
  std::uint32_t FormatNumber(const FormatKey& key, const std::function<CharacterFormat()>& make);
  std::uint32_t ParagraphFormatNumber(const ParagraphFormat& format);

  // Text is appended here by others and becomes part of the paragraph by ClaimText, in one format.
  std::u16string& Text() { return document_.text; }
  bool HasUnclaimedText() const { return claimed_ != document_.text.size(); }
  void ClaimText(std::uint32_t format);
  void SetTabDistance(std::int32_t twips) { document_.tabDistance = twips; }
  void AddPicture(Picture picture);  // its mark waits to be claimed, too
  // A paragraph of the place Cell belongs to the cell that ends next; where none does before the row ends, it
  // is text behind that. No row may be open where text ends.
  void EndParagraph(std::uint32_t paragraphFormat, std::uint32_t markFormat, Place place);
  // The row that is open has ended; nothing where none is.
  void EndRow(const RowFormat& format);
  bool HasOpenRow() const { return cells_ > 0; }
  bool HasRoomForCell() const { return cells_ < MaxCells; }

  // Whether the paragraph that is being built has text.
  bool HasOpenText() const { return claimed_ != paragraphStart_; }
  bool HasParagraphs() const { return !document_.paragraphs.empty(); }

  // The open paragraph's text, which waits until paragraphs before it are told. It must be claimed. What is
  // long or has a picture cannot be held, as it would be moved as often as somebody likes, and the pictures
  // are in order.
  struct OpenText {
    std::u16string text;
    std::vector<Run> runs;
  };
  bool CanHoldOpenText() const;
  OpenText TakeOpenText();
  void PutBack(const OpenText& held);

  // The document, whose last paragraph must have been ended. The builder is spent.
  Document Take();

 private:
  void NumberFormatsAgain();

  Document document_;
  std::unordered_map<FormatKey, std::uint32_t, FormatKeyHash> formats_;
  std::unordered_multimap<std::size_t, std::uint32_t> paragraphFormats_;  // by hash
  bool wasHeld_ = false;        // some text, which has its formats' numbers from before it was put back
  std::size_t formatText_ = 0;  // bytes, as of MaxFormatText
  std::uint32_t lastFormat_ = 0;
  std::uint32_t lastParagraphFormat_ = 0;
  FormatNumbers<RowFormat> rowFormats_{document_.rowFormats};
  std::size_t cells_ = 0;           // of the open row
  std::size_t lastCell_ = 0;        // the paragraph that the last of them ended with
  std::size_t inCell_ = 0;          // paragraphs behind that
  std::size_t claimed_ = 0;         // units of text that belong to runs
  std::size_t paragraphStart_ = 0;  // where the open paragraph begins
};

}  // namespace richtext::rtf
