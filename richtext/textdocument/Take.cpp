#include <algorithm>
#include <unordered_map>

#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include "richtext/characters/Unicode.h"
#include "richtext/document/FormatNumbers.h"
#include "richtext/document/Limits.h"
#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/HiddenText.h"
#include "richtext/textdocument/Paragraphs.h"
#include "richtext/textdocument/Pictures.h"
#include "richtext/textdocument/TextDocument.h"

namespace richtext {
namespace {

constexpr std::size_t BytesOfWork = 1024;  // of pictures, which are copied in the time of a small fragment

// Knows the toolkit's formats by its own numbers of them. Many of them can be one of the page's.
template <class Format>
class Known {
 public:
  explicit Known(FormatNumbers<Format>& numbers) : numbers_(numbers) {}

  // `make` gives the page's format where the toolkit's is met for the first time.
  template <class Make>
  std::uint32_t operator()(int index, Make make) {
    const auto [known, isNew] = byIndex_.try_emplace(index);
    if (isNew) known->second = numbers_(make());
    return known->second;
  }

 private:
  FormatNumbers<Format>& numbers_;
  std::unordered_map<int, std::uint32_t> byIndex_;
};

// Reads the part of a document between two positions.
class Taker {
 public:
  Taker(const QTextDocument& source, int from, int to) : source_(source), from_(from), to_(to) {}

  Document Take() {
    QTextBlock block = source_.findBlock(from_);
    // The toolkit looks a position up in a tree, and a block or fragment begins where the one before it ends.
    for (int at = block.position(); block.isValid() && at <= to_; at += block.length(), block = block.next())
      TakeBlock(block, at);
    return std::move(taken_);
  }

  // The same, no further than the block that has the work reach `most`.
  TakenPart TakePart(std::size_t most, const ComposedWord& word) {
    word_ = &word;
    QTextBlock block = source_.findBlock(from_);
    int at = from_;
    for (; block.isValid() && at <= to_ && work_ < most; at += block.length(), block = block.next())
      TakeBlock(block, at);
    return {std::move(taken_), at - from_, work_};
  }

 private:
  void TakeBlock(const QTextBlock& block, int at) {
    const std::size_t before = taken_.text.size();
    firstRun_ = taken_.runs.size();
    ++work_;
    for (auto it = block.begin(); !it.atEnd(); ++it, ++work_) {
      const QTextFragment fragment = it.fragment();
      const int end = at + fragment.length();
      const int split = IsWordIn(at, end) ? word_->at : at;
      TakeFragment(fragment, at, from_, split);
      if (IsWordIn(at, end)) TakeWord();
      TakeFragment(fragment, at, std::max(from_, split), to_);
      at = end;
    }
    if (IsWordIn(at, at + 1)) TakeWord();
    taken_.paragraphs.push_back(
        {static_cast<std::uint32_t>(taken_.text.size() - before),
         paragraphFormat_(block.blockFormatIndex(), [&] { return FromBlockFormat(block.blockFormat()); }),
         mark_(block.charFormatIndex(), [&] { return FromMarkFormat(block.charFormat()); })});
  }

  bool IsWordIn(int from, int to) const {
    return word_ && !word_->text.isEmpty() && word_->at >= from && word_->at < to;
  }

  void TakeWord() { AddText(word_->text, numbers_(FromTextFormat(word_->format)), word_->format); }

  // `at`: where the fragment begins. What is taken of it lies between `least` and `most`.
  void TakeFragment(const QTextFragment& fragment, int at, int least, int most) {
    const int from = std::max(least, at);
    const int to = std::min(most, at + fragment.length());
    if (from >= to) return;
    const QString whole = fragment.text();
    const QStringView text = QStringView(whole).mid(from - at, to - from);
    const auto shown =
        shown_(fragment.charFormatIndex(), [&] { return FromTextFormat(fragment.charFormat()); });
    // The toolkit takes its time to give a format, and few texts need it.
    if (!text.contains(QChar(HiddenSign)) && !text.contains(QChar(PictureMark))) return AddPlain(text, shown);
    const QTextCharFormat format = fragment.charFormat();
    const QString hidden = text.contains(QChar(HiddenSign)) ? HiddenTextOf(format) : QString();
    if (hidden.isEmpty()) return AddText(text, shown, format);
    for (const QChar unit : text) {
      if (unit == QChar(HiddenSign))
        AddText(hidden, HiddenNumber(format), format);
      else
        AddText(QStringView(&unit, 1), shown, format);
    }
  }

  std::uint32_t HiddenNumber(const QTextCharFormat& format) {
    CharacterFormat hidden = FromTextFormat(format);
    hidden.hidden = true;
    return numbers_(hidden);
  }

  void AddPlain(QStringView text, std::uint32_t format) {
    AddRun(static_cast<std::uint32_t>(text.size()), format);
    taken_.text.append(text.utf16(), static_cast<std::size_t>(text.size()));
  }

  void AddText(QStringView text, std::uint32_t format, const QTextCharFormat& drawn) {
    const std::size_t begin = taken_.text.size();
    AddPlain(text, format);
    for (std::size_t at = taken_.text.find(PictureMark, begin); at != std::u16string::npos;
         at = taken_.text.find(PictureMark, at + 1))
      TakePicture(taken_.text[at], drawn);
  }

  void AddRun(std::uint32_t length, std::uint32_t format) {
    if (taken_.runs.size() > firstRun_ && taken_.runs.back().format == format)
      taken_.runs.back().length += length;
    else
      taken_.runs.push_back({length, format});
  }

  // The sign of a picture that has none can come in as pasted text.
  void TakePicture(char16_t& sign, const QTextCharFormat& format) {
    if (!format.isImageFormat() && HiddenTextOf(format).isEmpty()) {
      sign = Replacement;
      return;
    }
    taken_.pictures.push_back(KeptPicture(format.toImageFormat(), source_));
    work_ += taken_.pictures.back().bytes.size() / BytesOfWork;
  }

  const QTextDocument& source_;
  const int from_;
  const int to_;
  const ComposedWord* word_ = nullptr;
  std::size_t work_ = 0;
  Document taken_;
  std::size_t firstRun_ = 0;  // of the paragraph in hand
  FormatNumbers<CharacterFormat> numbers_{taken_.formats};
  FormatNumbers<ParagraphFormat> paragraphNumbers_{taken_.paragraphFormats};
  Known<CharacterFormat> shown_{numbers_};
  Known<CharacterFormat> mark_{numbers_};
  Known<ParagraphFormat> paragraphFormat_{paragraphNumbers_};
};

std::int32_t TabDistanceOf(const QTextDocument& source) {
  return FittingTabDistance(source.property(TabDistanceProperty).toInt());
}

}  // namespace

Document TakeDocument(const QTextDocument& source) {
  Document taken = Taker(source, 0, source.characterCount() - 1).Take();
  taken.tabDistance = TabDistanceOf(source);
  return taken;
}

TakenPart TakePart(const QTextDocument& source, int from, int length, std::size_t most,
                   const ComposedWord& word) {
  TakenPart taken = Taker(source, from, from + length - 1).TakePart(most, word);
  taken.page.tabDistance = TabDistanceOf(source);
  return taken;
}

Document TakeSelection(const QTextCursor& selection) {
  return Taker(*selection.document(), selection.selectionStart(), selection.selectionEnd()).Take();
}

}  // namespace richtext
