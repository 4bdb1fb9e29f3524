// Written in the shape of the classic rich edit controls: tables, then the text with each format told by what
// it changes, and a \par after every paragraph, of which readers drop the last.
#include "richtext/rtf/Writer.h"

#include <cstddef>
#include <string_view>

#include "richtext/characters/Unicode.h"
#include "richtext/document/Limits.h"
#include "richtext/rtf/ListTableWriter.h"
#include "richtext/rtf/LookWriter.h"
#include "richtext/rtf/Output.h"
#include "richtext/rtf/ParagraphWriter.h"
#include "richtext/rtf/PictureWriter.h"
#include "richtext/rtf/RowWriter.h"
#include "richtext/rtf/Tables.h"

namespace richtext::rtf {
namespace {

class Writer {
 public:
  explicit Writer(const Document& document)
      : document_(document),
        tables_(document),
        lists_(document),
        paragraphs_(out_, tables_),
        looks_(document, tables_, out_) {}
  std::string Write();

 private:
  std::size_t ExpectedSize() const;
  void WriteParagraph(const Paragraph& paragraph);
  void WriteText(std::u16string_view text);
  void WritePicture();

  const Document& document_;
  const Tables tables_;
  const ListTableWriter lists_;
  Output out_;
  ParagraphWriter paragraphs_;
  LookWriter looks_;
  std::size_t textAt_ = 0;
  std::size_t runAt_ = 0;
  std::size_t pictureAt_ = 0;
  std::size_t rowAt_ = 0;
  bool isInRow_ = false;  // one has begun that has not ended
};

std::string Writer::Write() {
  out_.Reserve(ExpectedSize());
  out_.Raw("{\\rtf1\\ansi\\ansicpg1252");
  if (const std::int32_t distance = FittingTabDistance(document_.tabDistance); distance != DefaultTabDistance)
    out_.Word("deftab", distance);
  tables_.AppendTo(out_.Bytes());
  lists_.WriteTo(out_);
  out_.Raw("\\viewkind4\\uc1");
  for (const Paragraph& paragraph : document_.paragraphs) WriteParagraph(paragraph);
  out_.Raw("}\r\n");
  return out_.Take();
}

std::size_t Writer::ExpectedSize() const {
  std::size_t size = 256 + document_.text.size() + document_.text.size() / 8;
  size += document_.runs.size() * 12 + document_.paragraphs.size() * 12;
  for (const Picture& picture : document_.pictures) size += 128 + picture.bytes.size() * 33 / 16;
  return size;
}

void Writer::WriteParagraph(const Paragraph& paragraph) {
  const auto number = static_cast<std::size_t>(&paragraph - document_.paragraphs.data());
  const ParagraphFormat& format = document_.paragraphFormats[paragraph.format];
  const bool isInRow = paragraph.place != Place::Text;
  if (isInRow && !isInRow_) WriteRow(document_.rowFormats[document_.rows[rowAt_++]], tables_, out_);
  isInRow_ = isInRow && paragraph.place != Place::RowEnd;
  paragraphs_.Begin(format, {lists_.NumberOf(number), isInRow});
  const std::size_t end = textAt_ + paragraph.length;
  while (textAt_ < end) {
    const Run& run = document_.runs[runAt_++];
    looks_.SetText(run.format);
    WriteText(std::u16string_view(document_.text).substr(textAt_, run.length));
    textAt_ += run.length;
  }
  looks_.SetMark(paragraph.markFormat);
  out_.Raw(paragraph.place == Place::Text || paragraph.place == Place::Cell ? "\\par" : "\\cell");
  looks_.EndParagraph();
  if (paragraph.place == Place::RowEnd) out_.Raw("\\row");
  out_.Raw("\r\n");
}

void Writer::WriteText(std::u16string_view text) {
  for (std::size_t mark = text.find(PictureMark); mark != std::u16string_view::npos;
       mark = text.find(PictureMark)) {
    out_.Text(text.substr(0, mark));
    WritePicture();
    text.remove_prefix(mark + 1);
  }
  out_.Text(text);
}

void Writer::WritePicture() {
  const bool isThere = pictureAt_ < document_.pictures.size();
  if (!isThere || !AppendPicture(document_.pictures[pictureAt_++], out_.Bytes()))
    out_.Text({&Replacement, 1});
}

}  // namespace
}  // namespace richtext::rtf

namespace richtext {

std::string WriteRtf(const Document& document) {
  return rtf::Writer(document).Write();
}

}  // namespace richtext
