// The document is cut into stretches that are shown sign for sign. Between two of them stands what is not
// shown, such as hidden text, or what is shown otherwise: at the end of a row the document has one sign, and
// the page a tab and, where a paragraph follows, the end of a line.
#include "richtext/textdocument/ShownText.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>

#include "richtext/document/Limits.h"
#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/HiddenText.h"
#include "richtext/textdocument/RowTables.h"
#include "richtext/textdocument/Rows.h"

namespace richtext {
namespace {

struct Stretch {
  int at;  // in the document
  int shown;
  int length;
};

struct Shown {
  QString text;
  std::vector<Stretch> stretches;
};

// Whether paragraphs alone, and no row and no hidden text, are in the document.
bool IsPlain(const QTextDocument& document, const QString& raw) {
  if (HasTables(document) || raw.contains(QChar(HiddenSign))) return false;
  const QList<QTextFormat> formats = document.allFormats();
  return std::none_of(formats.begin(), formats.end(),
                      [](const QTextFormat& format) { return format.hasProperty(RowOfTable); });
}

// The tabs of a block that end cells of a row in columns.
struct CellEnds {
  int count = 0;
  bool endRow = false;   // the last of them
  bool endText = false;  // nothing stands behind it
};

CellEnds CellEndsOf(const QTextBlock& block, int cells) {
  CellEnds ends;
  for (auto it = block.begin(); !it.atEnd(); ++it) {
    const QTextFragment fragment = it.fragment();
    const bool areEnds = IsCellEnd(fragment.charFormat());
    for (const QChar unit : fragment.text()) {
      ends.endText = areEnds && unit == u'\t';
      if (!ends.endText) continue;
      ends.endRow = EndsRow(fragment.charFormat());
      ends.endText = ends.endRow || cells + ends.count + 1 < static_cast<int>(MaxCells);
      ends.count += ends.endText;
    }
  }
  return ends;
}

class Showing {
 public:
  explicit Showing(const QTextDocument& document)
      : document_(document), raw_(document.toRawText()), hasTables_(HasTables(document)) {}

  Shown Show() {
    if (IsPlain(document_, raw_))
      AddStretch(0, static_cast<int>(raw_.size()));
    else
      for (QTextBlock block = document_.begin(); block.isValid(); block = block.next()) AddBlock(block);
    shown_.text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
    return std::move(shown_);
  }

 private:
  // Of the paragraphs that are none of the page's, one behind a row stands at its end, and one before a row
  // where that begins.
  void AddBlock(const QTextBlock& block) {
    const int begin = block.position(), end = begin + block.length() - 1;
    const bool isGap = hasTables_ && IsGap(block);
    const bool isBehindRow = isGap && begin > 0 && raw_[begin - 1] == QChar(RowEndSign);
    const bool isInTable = isInTable_;
    const char16_t sign = end < raw_.size() ? raw_[end].unicode() : u'\0';
    if (sign == CellSign || sign == RowEndSign) isInTable_ = sign == CellSign;
    if (isBehindRow) return AddStretch(begin, end);
    if (std::exchange(isLineOver_, !isGap)) shown_.text += u'\n';
    AddLetters(block);
    const bool isCellOver = isInTable ? sign == CellSign || sign == RowEndSign : EndsOpenCell(block);
    if (isCellOver) shown_.text += u'\t';
    if (isInTable && sign == CellSign) isLineOver_ = false;
  }

  // A row in columns has one cell more than tabs where text stands behind the last one.
  bool EndsOpenCell(const QTextBlock& block) {
    if (!IsInRow(block.blockFormat())) return false;
    const CellEnds ends = CellEndsOf(block, cells_);
    const bool goesOn = MayGoOn(block) && !(ends.endText && ends.endRow);
    cells_ += ends.count;
    return !goesOn && std::exchange(cells_, 0) > 0 && !ends.endText;
  }

  void AddLetters(const QTextBlock& block) {
    int at = block.position();
    const int end = at + block.length() - 1;
    const bool mayHide = QStringView(raw_).mid(at, end - at).contains(QChar(HiddenSign));
    for (auto it = block.begin(); mayHide && !it.atEnd(); ++it) {
      const QTextFragment fragment = it.fragment();
      if (HiddenTextOf(fragment.charFormat()).isEmpty()) continue;
      for (int sign = fragment.position(); sign < fragment.position() + fragment.length(); ++sign)
        if (raw_[sign] == QChar(HiddenSign)) AddStretch(std::exchange(at, sign + 1), sign);
    }
    AddStretch(at, end);
  }

  void AddStretch(int from, int to) {
    shown_.stretches.push_back({from, static_cast<int>(shown_.text.size()), to - from});
    shown_.text += QStringView(raw_).mid(from, to - from);
  }

  const QTextDocument& document_;
  const QString raw_;
  const bool hasTables_;
  bool isInTable_ = false;   // the block in hand
  bool isLineOver_ = false;  // a paragraph has ended, and the next one begins a line
  int cells_ = 0;            // of the open row in columns
  Shown shown_;
};

// The last one that begins no later than a place.
template <int Stretch::*Begin>
const Stretch& StretchAt(const Shown& shown, int place) {
  const auto behind = std::upper_bound(shown.stretches.begin(), shown.stretches.end(), place,
                                       [](int at, const Stretch& stretch) { return at < stretch.*Begin; });
  return behind == shown.stretches.begin() ? shown.stretches.front() : *(behind - 1);
}

}  // namespace

QString ShownText(const QTextDocument& document) {
  return Showing(document).Show().text;
}

int ToShown(const QTextDocument& document, int position) {
  const Shown shown = Showing(document).Show();
  const Stretch& stretch = StretchAt<&Stretch::at>(shown, position);
  return stretch.shown + std::min(position - stretch.at, stretch.length);
}

int FromShown(const QTextDocument& document, int position) {
  const Shown shown = Showing(document).Show();
  const Stretch& stretch = StretchAt<&Stretch::shown>(shown, position);
  return stretch.at + std::min(position - stretch.shown, stretch.length);
}

}  // namespace richtext
