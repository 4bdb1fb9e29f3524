// A page as a value: what the RTF reader makes, what the writer writes, what the text box shows.
//
// The room holds this value and the rules that every maker of one keeps: what a page may hold (Limits.h), how
// its lists count and what their labels say (ListLabel.h), its plain text (PlainText.h). No bytes of any
// format come in here, and nothing goes out but values. The text of all paragraphs lies in one UTF-16 buffer;
// runs and paragraphs are lengths over it, and formats are interned, so that a page of a megabyte costs a few
// allocations. That is the hard part: the lengths must add up, and whoever changes one changes its kin.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "richtext/document/Table.h"

namespace richtext {

enum class UnderlineKind : std::uint8_t {
  None,
  Single,
  Words,
  Double,
  Dotted,
  Dash,
  DashDot,
  DashDotDot,
  Wave,
  Thick,
  LongDash,
  ThickDotted,
  ThickDash,
  ThickLongDash,
  ThickDashDot,
  ThickDashDotDot,
  ThickWave,
  DoubleWave
};
enum class Capitals : std::uint8_t { AsWritten, All, Small };
enum class VerticalPlace : std::uint8_t { Baseline, Superscript, Subscript };
enum class Alignment : std::uint8_t { Left, Right, Center, Justify };
enum class Direction : std::uint8_t { LeftToRight, RightToLeft };
enum class LineSpacingRule : std::uint8_t { Single, Multiple, AtLeast, Exact };
enum class TabKind : std::uint8_t { Left, Right, Center, Decimal };
// What fills the space that a tab leaves.
enum class TabLeader : std::uint8_t { None, Dots, MiddleDots, Hyphens, Line, ThickLine, EqualSigns };
enum class ListKind : std::uint8_t {
  None,
  Bullet,
  Decimal,
  LowerLetter,
  UpperLetter,
  LowerRoman,
  UpperRoman
};
enum class PictureKind : std::uint8_t { Png, Jpeg, Dib, Metafile, EnhancedMetafile, Other };

struct CharacterFormat {
  std::string fontName;          // UTF-8; empty: the reader of the document chooses
  std::int32_t halfPoints = 24;  // font size, 1 and up
  bool bold = false;
  bool italic = false;
  bool strikethrough = false;
  bool hidden = false;  // kept, not shown, and no part of the plain text
  UnderlineKind underline = UnderlineKind::None;
  Capitals capitals = Capitals::AsWritten;  // the text itself keeps its own letters
  VerticalPlace place = VerticalPlace::Baseline;
  std::optional<std::uint32_t> color;      // 0x00BBGGRR; nothing: automatic, which is black
  std::optional<std::uint32_t> highlight;  // 0x00BBGGRR behind the letters; nothing: the paper
  std::string link;                        // UTF-8, the address of a hyperlink; empty: none

  bool operator==(const CharacterFormat&) const = default;
};

struct TabStop {
  std::int32_t position = 0;  // twips from the left edge of the text
  TabKind kind = TabKind::Left;
  TabLeader leader = TabLeader::None;
  bool operator==(const TabStop&) const = default;
};

// A paragraph's label is made from these; it is no part of the text.
struct ListFormat {
  ListKind kind = ListKind::None;
  std::int32_t start = 1;  // the number of the list's first item
  std::int32_t level = 0;  // 0 to 8, for lists within lists
  std::u16string before;   // text before the number, such as "("
  std::u16string
      after;          // text behind it, such as "." or ")"; for bullets the bullet itself stands in `before`
  bool twin = false;  // tells a list of numbers from one of the same look that ends right before it

  bool operator==(const ListFormat&) const = default;
};

// The border on one side of a paragraph, and how far the text stands from it.
struct ParagraphBorder {
  Border line;
  std::int32_t space = 0;  // twips

  bool operator==(const ParagraphBorder&) const = default;
};
using ParagraphBorders = std::array<ParagraphBorder, 4>;  // by Side

// Measures are in twips, 1440 to the inch.
struct ParagraphFormat {
  Alignment alignment = Alignment::Left;
  Direction direction = Direction::LeftToRight;
  std::int32_t leftIndent = 0;
  std::int32_t rightIndent = 0;
  std::int32_t firstLineIndent = 0;  // added to leftIndent for the first line; negative: hanging
  std::int32_t spaceBefore = 0;
  std::int32_t spaceAfter = 0;
  bool autoBefore = false;  // as on a web page, whatever measure is told
  bool autoAfter = false;
  LineSpacingRule lineSpacingRule = LineSpacingRule::Single;
  std::int32_t lineSpacing = 0;  // Multiple: 240ths of a line; AtLeast, Exact: twips
  std::vector<TabStop> tabs;     // by position
  ListFormat list;
  std::optional<std::uint32_t> ground;  // 0x00BBGGRR behind all of it; nothing: the paper
  ParagraphBorders borders;  // outside of its indents; neighbours of the same ones stand in one frame

  bool operator==(const ParagraphFormat&) const = default;
};

// `borders` as a document can hold them (Limits.h): on a side that shows none, nothing is told.
ParagraphBorders FittingBorders(ParagraphBorders borders);
// The nearest of `tabs`, which are by position: as many as a paragraph of such borders keeps.
std::vector<TabStop> FittingTabs(std::vector<TabStop> tabs, const ParagraphBorders& borders);

// The spaces before and after a paragraph as they are shown: where they are automatic, none between the items
// of a list.
std::int32_t ShownSpaceBefore(const ParagraphFormat& format);
std::int32_t ShownSpaceAfter(const ParagraphFormat& format);

// What of a picture is cut off at its edges, in twips of the size it is shown in; negative: a margin.
struct PictureCrop {
  std::int32_t left = 0;
  std::int32_t right = 0;
  std::int32_t top = 0;
  std::int32_t bottom = 0;

  bool operator==(const PictureCrop&) const = default;
};

// A picture keeps what it came as, so that one that cannot be drawn goes out unchanged.
struct Picture {
  PictureKind kind = PictureKind::Png;
  std::string bytes;   // the data as they stood in the document: a PNG or JPEG file, a DIB without a file
                       // header, a metafile
  std::string header;  // kinds without a size of their own: the control words that described the data, such
                       // as "\\wmetafile8\\picw100\\pich50"; empty for PNG and JPEG
  std::int32_t widthTwips = 0;  // the size shown; 0: the picture's own at 96 dots per inch
  std::int32_t heightTwips = 0;
  PictureCrop crop = {};  // of a side whose size is told

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
  Place place = Place::Text;
  bool operator==(const Paragraph&) const = default;
};

// The characters of `text` that are no letters: U+2028 is a line break within a paragraph, U+0009 a tab,
// U+FFFC the next one of `pictures`. Paragraph ends are not in the text. A row's paragraphs follow each
// other, and the last of them is a RowEnd.
struct Document {
  std::u16string text;
  std::vector<Run> runs;  // together as long as text, none empty; a run ends where its paragraph ends
  std::vector<Paragraph> paragraphs;  // at least one; their lengths together are text's
  std::vector<CharacterFormat> formats;
  std::vector<ParagraphFormat> paragraphFormats;
  std::vector<Picture> pictures;
  std::vector<std::uint32_t> rows;  // of the tables, in their order: indices into rowFormats
  std::vector<RowFormat> rowFormats;
  std::int32_t tabDistance = 720;  // twips between the tab stops of paragraphs that set none, 60 to 32767

  bool operator==(const Document&) const = default;
};

// A document of one empty paragraph.
Document EmptyDocument();

}  // namespace richtext
