// Written in the shape of the classic rich edit controls: tables, then the text with each format told by what
// it changes, and a \par after every paragraph, of which readers drop the last.
#include "richtext/RtfWriter.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "richtext/Limits.h"
#include "richtext/RtfEscape.h"
#include "richtext/RtfPictureWriter.h"
#include "richtext/RtfTables.h"
#include "richtext/Unicode.h"

namespace richtext {
namespace {

// A character format as the control words tell it.
struct Look {
  std::size_t font = SIZE_MAX;  // no font yet
  std::int32_t halfPoints = 0;  // no size yet
  std::size_t color = 0;
  bool bold = false;
  bool italic = false;
  bool strikethrough = false;
  UnderlineKind underline = UnderlineKind::None;
  bool operator==(const Look&) const = default;
};

std::vector<Look> LooksOf(const Document& document, const RtfTables& tables) {
  std::vector<Look> looks;
  looks.reserve(document.formats.size());
  for (std::uint32_t i = 0; i < document.formats.size(); ++i) {
    const CharacterFormat& format = document.formats[i];
    looks.push_back({tables.Font(i), std::clamp(format.halfPoints, 1, MaxHalfPoints), tables.Color(i),
                     format.bold, format.italic, format.strikethrough, format.underline});
  }
  return looks;
}

class Writer {
 public:
  explicit Writer(const Document& document)
      : document_(document), tables_(document), looks_(LooksOf(document, tables_)) {}
  std::string Write();

 private:
  std::size_t ExpectedSize() const;
  void WriteParagraph(const Paragraph& paragraph);
  void SetParagraph(const ParagraphFormat& format);
  void SetLook(const Look& look);
  void Switch(std::string_view word, bool from, bool to);
  void WriteText(std::u16string_view text);
  std::size_t WritePlain(std::u16string_view text);
  void WriteRare(char16_t unit);
  void WritePicture();
  void Word(std::string_view name);
  void Word(std::string_view name, std::int32_t parameter);
  void Measure(std::string_view name, std::int32_t twips);
  void Symbol(char symbol);

  const Document& document_;
  const RtfTables tables_;
  const std::vector<Look> looks_;
  std::string rtf_;
  bool afterWord_ = false;  // text would run into the last control word
  Look look_;
  std::optional<ParagraphFormat> paragraph_;
  std::size_t textAt_ = 0;
  std::size_t runAt_ = 0;
  std::size_t pictureAt_ = 0;
};

std::string Writer::Write() {
  rtf_.reserve(ExpectedSize());
  rtf_ += "{\\rtf1\\ansi\\ansicpg1252\\deff0";
  tables_.AppendTo(rtf_);
  rtf_ += "\\viewkind4\\uc1";
  for (const Paragraph& paragraph : document_.paragraphs) WriteParagraph(paragraph);
  rtf_ += "}\r\n";
  return std::move(rtf_);
}

std::size_t Writer::ExpectedSize() const {
  std::size_t size = 256 + document_.text.size() + document_.text.size() / 8;
  size += document_.runs.size() * 12 + document_.paragraphs.size() * 12;
  for (const Picture& picture : document_.pictures) size += 128 + picture.bytes.size() * 33 / 16;
  return size;
}

void Writer::WriteParagraph(const Paragraph& paragraph) {
  SetParagraph(document_.paragraphFormats[paragraph.format]);
  const std::size_t end = textAt_ + paragraph.length;
  while (textAt_ < end) {
    const Run& run = document_.runs[runAt_++];
    SetLook(looks_[run.format]);
    WriteText(std::u16string_view(document_.text).substr(textAt_, run.length));
    textAt_ += run.length;
  }
  SetLook(looks_[paragraph.markFormat]);
  rtf_ += "\\par\r\n";
  afterWord_ = false;
}

void Writer::SetParagraph(const ParagraphFormat& format) {
  constexpr std::string_view Alignments[] = {"ql", "qr", "qc", "qj"};
  ParagraphFormat fitting;
  fitting.alignment = format.alignment;
  fitting.leftIndent = FittingIndent(format.leftIndent);
  fitting.rightIndent = FittingIndent(format.rightIndent);
  fitting.firstLineIndent = FittingIndent(format.firstLineIndent);
  if (paragraph_ == fitting) return;
  paragraph_ = fitting;
  Word("pard");
  Measure("fi", fitting.firstLineIndent);
  Measure("li", fitting.leftIndent);
  Measure("ri", fitting.rightIndent);
  if (fitting.alignment != Alignment::Left) Word(Alignments[static_cast<std::size_t>(fitting.alignment)]);
}

void Writer::SetLook(const Look& look) {
  if (look == look_) return;
  if (look.color != look_.color) Word("cf", static_cast<std::int32_t>(look.color));
  Switch("b", look_.bold, look.bold);
  Switch("i", look_.italic, look.italic);
  if (look.underline != look_.underline) Word(look.underline == UnderlineKind::None ? "ulnone" : "ul");
  Switch("strike", look_.strikethrough, look.strikethrough);
  if (look.font != look_.font) Word("f", static_cast<std::int32_t>(look.font));
  if (look.halfPoints != look_.halfPoints) Word("fs", look.halfPoints);
  look_ = look;
}

void Writer::Switch(std::string_view word, bool from, bool to) {
  if (from == to) return;
  if (to) {
    Word(word);
  } else {
    Word(word, 0);
  }
}

// A surrogate pair never spans two formats.
void Writer::WriteText(std::u16string_view text) {
  while (!text.empty()) {
    text.remove_prefix(WritePlain(text));
    if (text.empty()) return;
    const bool pair = text.size() > 1 && IsHighSurrogate(text[0]) && IsLowSurrogate(text[1]);
    const std::size_t length = pair ? 2 : 1;
    for (const char16_t unit : text.substr(0, length))
      WriteRare(IsSurrogate(unit) && !pair ? Replacement : unit);
    text.remove_prefix(length);
  }
}

// Writes the beginning that stands for itself, and returns its length.
std::size_t Writer::WritePlain(std::u16string_view text) {
  const auto isPlain = [](char16_t unit) {
    return unit >= u' ' && unit < 0x80 && unit != u'\\' && unit != u'{' && unit != u'}';
  };
  const auto end = std::find_if_not(text.begin(), text.end(), isPlain);
  if (end == text.begin()) return 0;
  if (afterWord_) rtf_ += ' ';
  afterWord_ = false;
  const std::size_t start = rtf_.size();
  const auto length = static_cast<std::size_t>(end - text.begin());
  rtf_.resize(start + length);
  std::transform(text.begin(), end, rtf_.begin() + static_cast<std::ptrdiff_t>(start),
                 [](char16_t unit) { return static_cast<char>(unit); });
  return length;
}

void Writer::WriteRare(char16_t unit) {
  switch (unit) {
    case u'\\':
    case u'{':
    case u'}':
      return Symbol(static_cast<char>(unit));
    case u'\t':
      return Word("tab");
    case LineBreak:
      return Word("line");
    case 0x00A0:
      return Symbol('~');
    case 0x00AD:
      return Symbol('-');
    case 0x2011:
      return Symbol('_');
    case PictureMark:
      return WritePicture();
    default:
      break;
  }
  const bool wrong = unit < u' ' || unit == ParagraphSeparator || IsNoncharacter(unit);
  AppendUnicode(wrong ? Replacement : unit, rtf_);
  afterWord_ = false;
}

void Writer::WritePicture() {
  afterWord_ = false;
  if (pictureAt_ == document_.pictures.size()) return AppendUnicode(Replacement, rtf_);
  if (!AppendPicture(document_.pictures[pictureAt_++], rtf_)) AppendUnicode(Replacement, rtf_);
}

void Writer::Word(std::string_view name) {
  AppendWord(name, rtf_);
  afterWord_ = true;
}

void Writer::Word(std::string_view name, std::int32_t parameter) {
  AppendWord(name, parameter, rtf_);
  afterWord_ = true;
}

void Writer::Measure(std::string_view name, std::int32_t twips) {
  if (twips != 0) Word(name, twips);
}

void Writer::Symbol(char symbol) {
  rtf_ += '\\';
  rtf_ += symbol;
  afterWord_ = false;
}

}  // namespace

std::string WriteRtf(const Document& document) {
  return Writer(document).Write();
}

}  // namespace richtext
