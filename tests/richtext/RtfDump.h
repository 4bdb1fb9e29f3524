// A document in one readable line, and tables of documents that are told by it.
#pragma once

#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "richtext/characters/Unicode.h"
#include "richtext/rtf/Reader.h"
#include "richtext/rtf/Writer.h"
#include "tests/support/Sample.h"

// "[center li720](b 40 Arial #ff0000)red() plain|next": paragraphs are parted by '|', a paragraph's format
// stands in brackets, a character format in parentheses where it changes, and what is the default is left
// out. "{0 99 198}a&b$" is a row: its format in braces, '&' between its cells. A line break is '/', a tab
// '>', a picture "<png 3 720x360>".
namespace richtext {

// Words parted by blanks.
class Words {
 public:
  void Add(const std::string& word) { line_ += line_.empty() || word.empty() ? word : ' ' + word; }
  void Add(const std::string& name, std::int32_t number) {
    if (number != 0) Add(name + std::to_string(number));
  }
  const std::string& line() const { return line_; }

 private:
  std::string line_;
};

template <class Kind>
const char* NameOf(Kind kind, const std::vector<const char*>& names) {
  return names.at(static_cast<std::size_t>(kind));
}

inline std::string DumpColor(std::uint32_t bgr) {
  char color[8];
  std::snprintf(color, sizeof color, "#%02x%02x%02x", bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF);
  return color;
}

inline std::string Dump(const CharacterFormat& format) {
  Words words;
  if (format.bold) words.Add("b");
  if (format.italic) words.Add("i");
  words.Add(
      NameOf(format.underline, {"", "u", "u-words", "u-double", "u-dotted", "u-dash", "u-dashdot",
                                "u-dashdotdot", "u-wave", "u-thick", "u-longdash", "u-dotted!", "u-dash!",
                                "u-longdash!", "u-dashdot!", "u-dashdotdot!", "u-wave!", "u-waves"}));
  if (format.strikethrough) words.Add("s");
  if (format.hidden) words.Add("v");
  words.Add(NameOf(format.capitals, {"", "caps", "scaps"}));
  words.Add(NameOf(format.place, {"", "super", "sub"}));
  if (format.halfPoints != 24) words.Add("", format.halfPoints);
  words.Add(format.fontName);
  if (format.color) words.Add(DumpColor(*format.color));
  if (format.highlight) words.Add("on " + DumpColor(*format.highlight));
  if (!format.link.empty()) words.Add("-> " + format.link);
  return '(' + words.line() + ')';
}

// ">decimal2 (#)" is a list of the second level whose first number is 2, "decimal1' #" the twin of one
// before it, "bullet -" one of bullets.
inline std::string Dump(const ListFormat& list) {
  if (list.kind == ListKind::None) return {};
  const std::string name(static_cast<std::size_t>(list.level), '>');
  const std::string kind =
      name + NameOf(list.kind, {"", "bullet", "decimal", "letter", "LETTER", "roman", "ROMAN"});
  if (list.kind == ListKind::Bullet) return kind + ' ' + ToUtf8(list.before);
  return kind + std::to_string(list.start) + (list.twin ? "' " : " ") + ToUtf8(list.before) + '#' +
         ToUtf8(list.after);
}

constexpr const char* Sides[] = {"t", "l", "b", "r", "h", "v"};  // of borders

inline std::string Dump(const std::string& name, const Border& border) {
  if (border == Border()) return {};
  return name +
         NameOf(border.kind, {"?", "-", "", "th", "db", "dot", "dash", "hair", "tri", "dashsm", "dd", "ddd",
                              "in", "out", "ridge", "groove"}) +
         std::to_string(border.width) + (border.color ? DumpColor(*border.color) : "");
}

inline std::string Dump(const ParagraphFormat& format) {
  Words words;
  words.Add(NameOf(format.alignment, {"", "right", "center", "justify"}));
  if (format.direction == Direction::RightToLeft) words.Add("rtl");
  words.Add("li", format.leftIndent);
  words.Add("ri", format.rightIndent);
  words.Add("fi", format.firstLineIndent);
  words.Add("sb", format.spaceBefore);
  words.Add("sa", format.spaceAfter);
  if (format.autoBefore) words.Add("sbauto");
  if (format.autoAfter) words.Add("saauto");
  words.Add(NameOf(format.lineSpacingRule, {"", "lines", "atleast", "exact"}), format.lineSpacing);
  for (const TabStop& tab : format.tabs)
    words.Add(std::string(NameOf(tab.kind, {"tab", "rtab", "ctab", "dtab"})) +
                  NameOf(tab.leader, {"", ".", ":", "-", "_", "__", "="}),
              tab.position);
  words.Add(Dump(format.list));
  if (format.ground) words.Add("on " + DumpColor(*format.ground));
  for (std::size_t side = 0; side < 4; ++side) {
    words.Add(Dump(Sides[side], format.borders[side].line));
    words.Add("space", format.borders[side].space);
  }
  return words.line().empty() ? "" : '[' + words.line() + ']';
}

// "{center 0 1440<^ top.. 2880}": where the row begins and its cells end, each with what it is: "<" and "-"
// is the first and one more of those that are one across, "^" and "v" downwards.
inline std::string Dump(const RowFormat& format) {
  Words words;
  words.Add(NameOf(format.place, {"", "center", "right"}));
  if (format.isHead) words.Add("head");
  words.Add("gap", format.gap);
  words.Add("high", format.height);
  for (std::size_t side = 0; side < 6; ++side) words.Add(Dump(Sides[side], format.borders[side]));
  words.Add(std::to_string(format.left));
  for (const CellFormat& cell : format.cells) {
    words.Add(std::to_string(cell.right) + NameOf(cell.across, {"", "<", "-"}) +
              NameOf(cell.down, {"", "^", "v"}) + NameOf(cell.place, {"", "middle", "low"}));
    if (cell.ground) words.Add("on " + DumpColor(*cell.ground));
    for (std::size_t side = 0; side < 4; ++side) words.Add(Dump(Sides[side], cell.borders[side]));
  }
  return '{' + words.line() + '}';
}

// Kind, bytes, header, size, and what is cut off at the left, the right, the top and the bottom.
inline std::string Dump(const Picture& picture) {
  Words words;
  words.Add(NameOf(picture.kind, {"png", "jpeg", "dib", "wmf", "emf", "other"}));
  words.Add(std::to_string(picture.bytes.size()));
  words.Add(picture.header);
  words.Add(std::to_string(picture.widthTwips) + 'x' + std::to_string(picture.heightTwips));
  const PictureCrop& crop = picture.crop;
  if (crop != PictureCrop())
    for (const std::int32_t side : {crop.left, crop.right, crop.top, crop.bottom})
      words.Add(std::to_string(side));
  return '<' + words.line() + '>';
}

inline std::string Dump(const Document& document) {
  std::string line, inForce = "()";
  std::size_t text = 0, run = 0, picture = 0;
  const auto switchTo = [&](std::uint32_t format) {
    const std::string wanted = Dump(document.formats.at(format));
    if (wanted != inForce) line += inForce = wanted;
  };
  const auto marked = [](std::u16string part) {
    for (char16_t& unit : part) unit = unit == LineBreak ? u'/' : unit == u'\t' ? u'>' : unit;
    return ToUtf8(part);
  };
  std::size_t row = 0;
  Place before = Place::Text;
  for (const Paragraph& paragraph : document.paragraphs) {
    if (&paragraph != &document.paragraphs.front()) line += before == Place::CellEnd ? '&' : '|';
    const bool beginsRow = before == Place::Text || before == Place::RowEnd;
    if (paragraph.place != Place::Text && beginsRow)
      line += Dump(document.rowFormats.at(document.rows.at(row++)));
    before = paragraph.place;
    line += Dump(document.paragraphFormats.at(paragraph.format));
    for (const std::size_t end = text + paragraph.length; text < end;) {
      switchTo(document.runs.at(run).format);
      const std::size_t runEnd = text + document.runs[run++].length;
      while (text < runEnd) {
        const std::size_t mark = std::min(document.text.find(PictureMark, text), runEnd);
        line += marked(document.text.substr(text, mark - text));
        if (mark < runEnd) line += Dump(document.pictures.at(picture++));
        text = std::min(mark + 1, runEnd);
      }
    }
    switchTo(paragraph.markFormat);
    if (paragraph.place == Place::RowEnd) line += '$';
  }
  EXPECT_EQ(row, document.rows.size());
  return line;
}

struct Example {
  std::string source, dump;
};

// Those of a sample: a line, and the next one says behind "= " what becomes of it. What stands behind "@ "
// comes before each one as far as the next empty line.
inline std::vector<Example> ExamplesOf(const std::string& sample) {
  std::vector<Example> examples;
  std::ifstream file(fixture::PathOfSample("examples/" + sample));
  for (std::string line, before, all; std::getline(file, line); before = line) {
    if (line.starts_with("= ")) examples.push_back({all + before, line.substr(2)});
    if (line.starts_with("@ ") || line.empty()) all = line.substr(line.empty() ? 0 : 2);
  }
  EXPECT_FALSE(examples.empty()) << sample;
  return examples;
}

// Read as told, and the same after it was written and read again, in the same bytes.
inline void ExpectReads(const std::string& rtf, const std::string& dump) {
  SCOPED_TRACE(rtf.substr(0, 200));
  const Document document = ReadRtf(rtf);
  EXPECT_EQ(Dump(document), dump);
  const std::string written = WriteRtf(document);
  EXPECT_EQ(ReadRtf(written), document) << written;
  EXPECT_EQ(WriteRtf(ReadRtf(written)), written);
}

inline void ExpectEach(const std::vector<Example>& examples) {
  for (const auto& [rtf, dump] : examples) ExpectReads(rtf, dump);
}

}  // namespace richtext
