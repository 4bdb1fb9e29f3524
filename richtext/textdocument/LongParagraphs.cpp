#include "richtext/textdocument/LongParagraphs.h"

#include <QtGui/QTextDocument>

#include "richtext/characters/Unicode.h"
#include "richtext/textdocument/LayoutFormats.h"

namespace richtext {
namespace {

constexpr int Kept = 4'000;       // letters of a paragraph of which is kept what was found
constexpr int Unshaped = 20'000;  // and of one whose letters are not shaped
constexpr qsizetype MostStretches = 500;
constexpr int IsUnshaped = QTextFormat::UserProperty - 1;  // bool, of a layout's format

// Latin, Greek and Cyrillic letters, marks of punctuation, and signs of East Asia: none of them joins another
// one or goes onto it.
bool StandsAlone(char16_t unit) {
  if (unit < 0x300) return unit != 0xAD;
  if (unit < 0x530) return unit >= 0x370 && (unit < 0x483 || unit > 0x489);
  if (unit < 0x2070) return unit >= 0x2010 && unit <= 0x205E && (unit < 0x202A || unit > 0x202E);
  return unit == 0x20AC || unit == PictureMark || (unit >= 0x3001 && unit < 0x302A) ||
         (unit >= 0x3041 && unit < 0x3099) || (unit >= 0x30A0 && unit < 0x3100) ||
         (unit >= 0x4E00 && unit < 0xA000) || (unit >= 0xAC00 && unit < 0xD7A4) ||
         (unit >= 0xFF01 && unit < 0xFF9E);
}

bool PartsWords(char16_t unit) {
  return unit == u' ' || unit == u'\t' || unit == LineBreak;
}

QTextLayout::FormatRange Stretch(qsizetype from, qsizetype to) {
  QTextCharFormat format;
  format.setFontStyleStrategy(QFont::PreferNoShaping);
  format.setProperty(IsUnshaped, true);
  return {static_cast<int>(from), static_cast<int>(to - from), format};
}

// The stretches of words whose letters all stand alone; none where they are too many.
LayoutFormats Stretches(const QString& text) {
  LayoutFormats stretches;
  qsizetype from = 0, word = 0;  // of the stretch and of the word in hand
  const auto end = [&](qsizetype to) {
    if (to > from) stretches.push_back(Stretch(from, to));
  };
  for (qsizetype i = 0; i < text.size(); ++i) {
    const char16_t unit = text[i].unicode();
    if (PartsWords(unit)) word = i + 1;
    if (StandsAlone(unit)) continue;
    end(word);
    while (i < text.size() && !PartsWords(text[i].unicode())) ++i;
    from = word = i;
  }
  end(text.size());
  return stretches.size() <= MostStretches ? stretches : LayoutFormats();
}

}  // namespace

void SpareLongParagraphs(const QTextDocument& document, int at, int added) {
  for (QTextBlock block = document.findBlock(at); block.isValid() && block.position() <= at + added;
       block = block.next()) {
    block.layout()->setCacheEnabled(block.length() > Kept);
    SetLayoutFormats(block, IsUnshaped,
                     block.length() > Unshaped ? Stretches(block.text()) : LayoutFormats());
  }
}

}  // namespace richtext
