#include "richtext/BoxDocument.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <unordered_map>

#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include "richtext/BoxFormats.h"
#include "richtext/BoxPictures.h"

namespace richtext {
namespace {

constexpr char16_t LineBreak = u'\u2028';
constexpr char16_t PictureMark = u'\uFFFC';
constexpr char16_t Replacement = u'\uFFFD';

// The toolkit takes some characters for the borders of its paragraphs and frames; these may not slip in.
char16_t WithinParagraph(char16_t unit) {
  switch (unit) {
    case u'\n':
    case u'\r':
    case u'\u2029':
      return LineBreak;
    case 0xFDD0:
    case 0xFDD1:
      return Replacement;
    default:
      return unit;
  }
}

// Writes a page at a cursor. The toolkit's formats are made once for each format of the page.
class Filler {
 public:
  Filler(const Document& source, QTextCursor& cursor) : source_(source), cursor_(cursor), text_(source.text) {
    std::transform(text_.begin(), text_.end(), text_.begin(), WithinParagraph);
    std::transform(source.formats.begin(), source.formats.end(), std::back_inserter(formats_), ToTextFormat);
    std::transform(source.paragraphFormats.begin(), source.paragraphFormats.end(),
                   std::back_inserter(blockFormats_), ToBlockFormat);
  }

  void Fill() {
    for (const Paragraph& paragraph : source_.paragraphs) {
      Begin(paragraph);
      for (std::uint32_t left = paragraph.length; left > 0; ++run_) {
        Insert(source_.runs[run_]);
        left -= std::min(left, source_.runs[run_].length);
      }
    }
  }

 private:
  void Begin(const Paragraph& paragraph) {
    const QTextBlockFormat& format = blockFormats_[paragraph.format];
    const QTextCharFormat& mark = formats_[paragraph.markFormat];
    if (&paragraph != source_.paragraphs.data()) return cursor_.insertBlock(format, mark);
    if (cursor_.block().length() > 1) return;
    cursor_.setBlockFormat(format);
    cursor_.setBlockCharFormat(mark);
  }

  void Insert(const Run& run) {
    std::u16string_view rest = std::u16string_view(text_).substr(at_, run.length);
    const QTextCharFormat& format = formats_[run.format];
    at_ += run.length;
    while (!rest.empty()) {
      const std::size_t plain = std::min(rest.find(PictureMark), rest.size());
      Insert(rest.substr(0, plain), format);
      if (plain < rest.size()) InsertPicture(format);
      rest.remove_prefix(std::min(plain + 1, rest.size()));
    }
  }

  void Insert(std::u16string_view text, const QTextCharFormat& format) {
    if (text.empty()) return;
    const auto* units = reinterpret_cast<const QChar*>(text.data());
    cursor_.insertText(QString::fromRawData(units, static_cast<qsizetype>(text.size())), format);
  }

  void InsertPicture(const QTextCharFormat& format) {
    if (picture_ == source_.pictures.size()) return Insert({&Replacement, 1}, format);
    const Picture& picture = source_.pictures[picture_++];
    Insert({&PictureMark, 1}, KeepPicture(picture, format, *cursor_.document()));
  }

  const Document& source_;
  QTextCursor& cursor_;
  std::u16string text_;
  std::vector<QTextCharFormat> formats_;
  std::vector<QTextBlockFormat> blockFormats_;
  std::size_t run_ = 0;
  std::size_t at_ = 0;
  std::size_t picture_ = 0;
};

struct FormatHash {
  std::size_t operator()(const CharacterFormat& format) const {
    std::size_t hash = std::hash<std::string>()(format.fontName);
    for (const std::size_t part : {std::size_t(format.halfPoints), std::size_t(format.underline),
                                   std::size_t(format.bold + 2 * format.italic + 4 * format.strikethrough),
                                   std::size_t(format.color.value_or(0xFF000000))})
      hash = hash * 31 + part;
    return hash;
  }
  std::size_t operator()(const ParagraphFormat& format) const {
    return ((std::size_t(format.alignment) * 31 + format.leftIndent) * 31 + format.rightIndent) * 31 +
           format.firstLineIndent;
  }
};

// Numbers the formats in the order in which they come. Many of the toolkit's formats can be one of the
// page's.
template <class Format>
class Numbering {
 public:
  explicit Numbering(std::vector<Format>& formats) : formats_(formats) {}

  // `index` is the toolkit's number of the format, and `make` gives the page's format where it is a new one.
  template <class Make>
  std::uint32_t operator()(int index, Make make) {
    const auto [known, isNew] = byIndex_.try_emplace(index);
    if (isNew) known->second = Number(make());
    return known->second;
  }

 private:
  std::uint32_t Number(const Format& format) {
    const auto next = static_cast<std::uint32_t>(formats_.size());
    const auto [known, isNew] = byFormat_.try_emplace(format, next);
    if (isNew) formats_.push_back(format);
    return known->second;
  }

  std::vector<Format>& formats_;
  std::unordered_map<int, std::uint32_t> byIndex_;
  std::unordered_map<Format, std::uint32_t, FormatHash> byFormat_;
};

// Reads the part of a document between two positions.
class Taker {
 public:
  Taker(const QTextDocument& source, int from, int to) : source_(source), from_(from), to_(to) {}

  Document Take() {
    for (QTextBlock block = source_.findBlock(from_); block.isValid() && block.position() <= to_;
         block = block.next())
      TakeBlock(block);
    return std::move(taken_);
  }

 private:
  void TakeBlock(const QTextBlock& block) {
    const std::size_t before = taken_.text.size();
    firstRun_ = taken_.runs.size();
    for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment) TakeFragment(fragment.fragment());
    taken_.paragraphs.push_back(
        {static_cast<std::uint32_t>(taken_.text.size() - before),
         paragraphFormat_(block.blockFormatIndex(), [&] { return FromBlockFormat(block.blockFormat()); }),
         format_(block.charFormatIndex(), [&] { return FromTextFormat(block.charFormat()); })});
  }

  void TakeFragment(const QTextFragment& fragment) {
    const int from = std::max(from_, fragment.position());
    const int to = std::min(to_, fragment.position() + fragment.length());
    if (from >= to) return;
    const auto format =
        format_(fragment.charFormatIndex(), [&] { return FromTextFormat(fragment.charFormat()); });
    AddRun(static_cast<std::uint32_t>(to - from), format);
    const QString text = fragment.text();
    AddText(QStringView(text).mid(from - fragment.position(), to - from), fragment);
  }

  void AddRun(std::uint32_t length, std::uint32_t format) {
    if (taken_.runs.size() > firstRun_ && taken_.runs.back().format == format)
      taken_.runs.back().length += length;
    else
      taken_.runs.push_back({length, format});
  }

  void AddText(QStringView text, const QTextFragment& fragment) {
    const std::size_t begin = taken_.text.size();
    taken_.text.append(text.utf16(), static_cast<std::size_t>(text.size()));
    for (std::size_t at = taken_.text.find(PictureMark, begin); at != std::u16string::npos;
         at = taken_.text.find(PictureMark, at + 1))
      TakePicture(taken_.text[at], fragment.charFormat());
  }

  // The sign of a picture that has none can come in as pasted text.
  void TakePicture(char16_t& sign, const QTextCharFormat& format) {
    if (format.isImageFormat())
      taken_.pictures.push_back(KeptPicture(format.toImageFormat(), source_));
    else
      sign = Replacement;
  }

  const QTextDocument& source_;
  const int from_;
  const int to_;
  Document taken_;
  std::size_t firstRun_ = 0;  // of the paragraph in hand
  Numbering<CharacterFormat> format_{taken_.formats};
  Numbering<ParagraphFormat> paragraphFormat_{taken_.paragraphFormats};
};

}  // namespace

void FillDocument(const Document& source, QTextDocument& target) {
  target.setUndoRedoEnabled(false);
  target.clear();
  QTextCursor cursor(&target);
  InsertDocument(source, cursor);
  target.setUndoRedoEnabled(true);
}

void InsertDocument(const Document& source, QTextCursor& cursor) {
  cursor.beginEditBlock();
  cursor.removeSelectedText();
  Filler(source, cursor).Fill();
  cursor.endEditBlock();
}

Document TakeDocument(const QTextDocument& source) {
  return Taker(source, 0, source.characterCount() - 1).Take();
}

Document TakeSelection(const QTextCursor& selection) {
  return Taker(*selection.document(), selection.selectionStart(), selection.selectionEnd()).Take();
}

}  // namespace richtext
