// A document in one readable line.
#pragma once

#include <cstdio>
#include <string>

#include "richtext/Document.h"
#include "richtext/Unicode.h"

namespace richtext {

// "[center li720](b 40 Arial #ff0000)red() plain|next": paragraphs are parted by '|', a paragraph's format
// stands in brackets, a character format in parentheses where it changes, and what is the default is left
// out. A line break is '/', a tab '>', a picture "<png 3 720x360>".
inline std::string DumpColor(std::uint32_t bgr) {
  char color[8];
  std::snprintf(color, sizeof color, "#%02x%02x%02x", bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF);
  return color;
}

inline std::string Dump(const CharacterFormat& format) {
  std::string words;
  const auto add = [&words](const std::string& word) {
    words += words.empty() || word.empty() ? word : ' ' + word;
  };
  if (format.bold) add("b");
  if (format.italic) add("i");
  constexpr const char* Underlines[] = {"",       "u",         "u-words",      "u-double", "u-dotted",
                                        "u-dash", "u-dashdot", "u-dashdotdot", "u-wave",   "u-thick"};
  add(Underlines[static_cast<int>(format.underline)]);
  if (format.strikethrough) add("s");
  if (format.hidden) add("v");
  constexpr const char* CapitalWords[] = {"", "caps", "scaps"};
  add(CapitalWords[static_cast<int>(format.capitals)]);
  constexpr const char* Places[] = {"", "super", "sub"};
  add(Places[static_cast<int>(format.place)]);
  if (format.halfPoints != 24) add(std::to_string(format.halfPoints));
  if (!format.fontName.empty()) add(format.fontName);
  if (format.color) add(DumpColor(*format.color));
  if (format.highlight) add("on " + DumpColor(*format.highlight));
  if (!format.link.empty()) add("-> " + format.link);
  return '(' + words + ')';
}

// "2 decimal (#)" is a list of the level 1 whose first number is 2, "bullet -" one of bullets.
inline std::string Dump(const ListFormat& list) {
  constexpr const char* Kinds[] = {"", "bullet", "decimal", "letter", "LETTER", "roman", "ROMAN"};
  if (list.kind == ListKind::None) return {};
  const std::string kind =
      std::string(static_cast<std::size_t>(list.level), '>') + Kinds[static_cast<int>(list.kind)];
  if (list.kind == ListKind::Bullet) return kind + ' ' + ToUtf8(list.before);
  return kind + std::to_string(list.start) + ' ' + ToUtf8(list.before) + '#' + ToUtf8(list.after);
}

inline std::string Dump(const ParagraphFormat& format) {
  constexpr const char* Alignments[] = {"", "right", "center", "justify"};
  constexpr const char* Rules[] = {"", "lines", "atleast", "exact"};
  constexpr const char* Tabs[] = {"tab", "rtab", "ctab", "dtab"};
  std::string words = Alignments[static_cast<int>(format.alignment)];
  const auto say = [&words](const std::string& word) { words += (words.empty() ? "" : " ") + word; };
  const auto add = [&say](const char* name, std::int32_t twips) {
    if (twips != 0) say(name + std::to_string(twips));
  };
  if (format.direction == Direction::RightToLeft) say("rtl");
  add("li", format.leftIndent);
  add("ri", format.rightIndent);
  add("fi", format.firstLineIndent);
  add("sb", format.spaceBefore);
  add("sa", format.spaceAfter);
  add(Rules[static_cast<int>(format.lineSpacingRule)], format.lineSpacing);
  for (const TabStop& tab : format.tabs) say(Tabs[static_cast<int>(tab.kind)] + std::to_string(tab.position));
  if (const std::string list = Dump(format.list); !list.empty()) say(list);
  return words.empty() ? words : '[' + words + ']';
}

inline std::string Dump(const Picture& picture) {
  return "<png " + std::to_string(picture.bytes.size()) + ' ' + std::to_string(picture.widthTwips) + 'x' +
         std::to_string(picture.heightTwips) + '>';
}

inline std::string DumpText(std::u16string_view text, const Document& document, std::size_t& picture) {
  std::string line;
  std::u16string plain;
  for (const char16_t unit : text) {
    if (unit != PictureMark) {
      plain += unit == LineBreak ? u'/' : unit == u'\t' ? u'>' : unit;
      continue;
    }
    line += ToUtf8(plain) + Dump(document.pictures.at(picture++));
    plain.clear();
  }
  return line + ToUtf8(plain);
}

inline std::string Dump(const Document& document) {
  std::string line;
  std::string inForce = "()";
  std::size_t text = 0;
  std::size_t run = 0;
  std::size_t picture = 0;
  const auto switchTo = [&](std::uint32_t format) {
    const std::string wanted = Dump(document.formats.at(format));
    if (wanted != inForce) line += inForce = wanted;
  };
  for (const Paragraph& paragraph : document.paragraphs) {
    if (&paragraph != &document.paragraphs.front()) line += '|';
    line += Dump(document.paragraphFormats.at(paragraph.format));
    for (const std::size_t end = text + paragraph.length; text < end; ++run) {
      switchTo(document.runs.at(run).format);
      line += DumpText(document.text.substr(text, document.runs[run].length), document, picture);
      text += document.runs[run].length;
    }
    switchTo(paragraph.markFormat);
  }
  return line;
}

}  // namespace richtext
