// A page as a value: what the RTF reader makes, what the writer writes, what the text box shows.
//
// The text of all paragraphs lies in one UTF-16 buffer; runs and paragraphs are lengths over it, and formats
// are interned, so that a page of a megabyte costs a few allocations.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace richtext {

enum class UnderlineKind : std::uint8_t { None, Single };
enum class Alignment : std::uint8_t { Left, Right, Center, Justify };
enum class PictureKind : std::uint8_t { Png };

struct CharacterFormat {
  std::string fontName;          // UTF-8; empty: the reader of the document chooses
  std::int32_t halfPoints = 24;  // font size, 1 and up
  bool bold = false;
  bool italic = false;
  bool strikethrough = false;
  UnderlineKind underline = UnderlineKind::None;
  std::optional<std::uint32_t> color;  // 0x00BBGGRR; nothing: automatic, which is black

  bool operator==(const CharacterFormat&) const = default;
};

// Measures are in twips, 1440 to the inch.
struct ParagraphFormat {
  Alignment alignment = Alignment::Left;
  std::int32_t leftIndent = 0;
  std::int32_t rightIndent = 0;
  std::int32_t firstLineIndent = 0;  // added to leftIndent for the first line; negative: hanging

  bool operator==(const ParagraphFormat&) const = default;
};

struct Picture {
  PictureKind kind = PictureKind::Png;
  std::string bytes;            // the picture's own file, unchanged
  std::int32_t widthTwips = 0;  // the size shown; 0: the picture's own at 96 dots per inch
  std::int32_t heightTwips = 0;

  bool operator==(const Picture&) const = default;
};

// A stretch of text of one format.
struct Run {
  std::uint32_t length = 0;  // UTF-16 units
  std::uint32_t format = 0;  // index into Document::formats
  bool operator==(const Run&) const = default;
};

struct Paragraph {
  std::uint32_t length = 0;      // UTF-16 units, without its end
  std::uint32_t format = 0;      // index into Document::paragraphFormats
  std::uint32_t markFormat = 0;  // index into Document::formats: the format of the paragraph's end
  bool operator==(const Paragraph&) const = default;
};

// The characters of `text` that are no letters: U+2028 is a line break within a paragraph, U+0009 a tab,
// U+FFFC the next one of `pictures`. Paragraph ends are not in the text.
struct Document {
  std::u16string text;
  std::vector<Run> runs;  // together as long as text, none empty; a run ends where its paragraph ends
  std::vector<Paragraph> paragraphs;  // at least one; their lengths together are text's
  std::vector<CharacterFormat> formats;
  std::vector<ParagraphFormat> paragraphFormats;
  std::vector<Picture> pictures;

  bool operator==(const Document&) const = default;
};

// A document of one empty paragraph.
Document EmptyDocument();

}  // namespace richtext
