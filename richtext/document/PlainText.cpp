#include "richtext/document/PlainText.h"

#include <cstddef>
#include <string_view>

#include "richtext/characters/Unicode.h"

namespace richtext {
namespace {

void AppendShown(std::u16string_view text, std::u16string& shown) {
  for (const char16_t unit : text) {
    if (unit == PictureMark) continue;
    shown += unit == LineBreak ? u'\n' : unit;
  }
}

}  // namespace

std::string PlainText(const Document& document) {
  std::u16string shown;
  shown.reserve(document.text.size() + document.paragraphs.size());
  const std::u16string_view text = document.text;
  std::size_t at = 0;
  std::size_t run = 0;
  for (const Paragraph& paragraph : document.paragraphs) {
    if (&paragraph != document.paragraphs.data() && (&paragraph)[-1].place != Place::CellEnd) shown += u'\n';
    for (const std::size_t end = at + paragraph.length; at < end; at += document.runs[run++].length)
      if (!document.formats[document.runs[run].format].hidden)
        AppendShown(text.substr(at, document.runs[run].length), shown);
    if (paragraph.place == Place::CellEnd || paragraph.place == Place::RowEnd) shown += u'\t';
  }
  return ToUtf8(shown);
}

}  // namespace richtext
