#include "richtext/html/Reader.h"

#include <algorithm>
#include <utility>

#include <QtCore/QBuffer>
#include <QtCore/QUrl>
#include <QtGui/QImageReader>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtGui/QTextTable>

#include "richtext/characters/Unicode.h"
#include "richtext/document/FormatNumbers.h"
#include "richtext/document/Limits.h"
#include "richtext/document/Twips.h"
#include "richtext/html/Backgrounds.h"
#include "richtext/html/Columns.h"
#include "richtext/html/Formats.h"
#include "richtext/html/Frames.h"
#include "richtext/html/Lists.h"
#include "richtext/html/Markup.h"
#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/Pictures.h"
#include "richtext/textdocument/SmallPng.h"

namespace richtext::html {
namespace {

// What the toolkit's own knowledge of HTML lacks or would take from the desktop's colours.
const QLatin1String HouseStyle(
    "mark { background-color: #ffff00; } a[href] { color: #0000ee; } ins { text-decoration: underline; }"
    "del, strike { text-decoration: line-through; }");

constexpr std::int32_t RulerWidth = 15;   // twips
constexpr std::int32_t RulerSpace = 120;  // twips, below it
constexpr std::uint32_t RulerColor = 0x808080;

// Fetches nothing, whatever the markup names.
class InertDocument : public QTextDocument {
 protected:
  QVariant loadResource(int, const QUrl&) override { return {}; }
};

// The outermost table around a block; nothing where it stands in none.
const QTextTable* TableAround(const QTextBlock& block) {
  const QTextTable* table = nullptr;
  for (const QTextFrame* frame = QTextCursor(block).currentFrame(); frame; frame = frame->parentFrame())
    if (const auto* outer = qobject_cast<const QTextTable*>(frame)) table = outer;
  return table;
}

// One cell alone holds a part of a web page, and more than a row has room for are no columns.
bool IsTable(const QTextTable* table) {
  return table && table->rows() * table->columns() > 1 && table->columns() <= static_cast<int>(MaxCells);
}

// The toolkit puts an empty paragraph before and behind a table.
bool IsEdgeOfTable(const QTextBlock& block) {
  if (block.length() > 1 || CellOf(block).isValid()) return false;
  return (block.previous().isValid() && CellOf(block.previous()).isValid()) ||
         (block.next().isValid() && CellOf(block.next()).isValid());
}

bool IsRuler(const QTextBlock& block) {
  return block.length() <= 1 &&
         block.blockFormat().hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth);
}

// The bytes of a picture that the markup holds, "data:image/png;base64,...".
QByteArray DataOf(const QString& address) {
  if (!address.startsWith(QLatin1String("data:"), Qt::CaseInsensitive)) return {};
  const qsizetype comma = address.indexOf(u',');
  const QByteArray data = QByteArray::fromPercentEncoding(address.mid(comma + 1).toLatin1());
  const bool isBase64 = address.left(comma).endsWith(QLatin1String(";base64"), Qt::CaseInsensitive);
  return isBase64 ? QByteArray::fromBase64(data) : data;
}

// PNG and JPEG files stay what they are, other pictures become PNG. The markup tells the size, or nobody.
Picture OfItsOwnSize(QByteArray file) {
  Picture picture = FromFile(file);
  picture.widthTwips = picture.heightTwips = 0;
  if (!picture.bytes.empty()) return picture;
  QBuffer buffer(&file);
  buffer.open(QIODevice::ReadOnly);
  const QByteArray kind = QImageReader::imageFormat(&buffer);
  if (kind == "gif" || kind == "bmp" || kind == "webp") picture.bytes = SmallPng(DecodedFile(file));
  return picture;
}

class Reader {
 public:
  Reader(const QTextDocument& html, const std::vector<ParagraphBorders>& frames, const CharacterFormat& caret,
         std::function<Picture()> carried)
      : html_(html), frames_(frames), caret_(caret), carried_(std::move(carried)), backgrounds_(html) {}

  Document Read() {
    for (QTextBlock block = html_.begin(); block.isValid(); block = block.next()) {
      if (const QTextTable* table = TableAround(block); IsTable(table))
        block = TakeTable(*table);
      else if (!IsEdgeOfTable(block))
        TakeBlock(block);
    }
    if (begun_ || page_.paragraphs.empty()) EndParagraph(Place::Text);
    return std::move(page_);
  }

 private:
  // Returns its last block.
  QTextBlock TakeTable(const QTextTable& table) {
    if (begun_) EndParagraph(Place::Text);
    const std::vector<std::int32_t> edges = RightEdgesOf(table, caret_);
    for (int row = 0; row < table.rows(); ++row) TakeRow(table, row, edges);
    last_.reset();
    return html_.findBlock(table.lastPosition());
  }

  void TakeRow(const QTextTable& table, int row, const std::vector<std::int32_t>& edges) {
    RowFormat format;
    for (int column = 0; column < table.columns();) {
      const QTextTableCell cell = table.cellAt(row, column);
      column = std::clamp(cell.column() + cell.columnSpan(), column + 1, table.columns());
      TakeCell(cell, cell.row() == row, column == table.columns() ? Place::RowEnd : Place::CellEnd);
      format.cells.push_back(FromHtmlCell(cell, row, table.format()));
      format.cells.back().right = edges[static_cast<std::size_t>(column) - 1];
    }
    page_.rows.push_back(rowNumbers_(FittingRow(format, format.cells.size())));
  }

  // Of one that begins in a row above there is an empty paragraph.
  void TakeCell(const QTextTableCell& cell, bool beginsHere, Place end) {
    place_ = Place::Cell;
    last_.reset();
    for (QTextBlock block = html_.findBlock(cell.firstPosition());
         beginsHere && block.isValid() && block.position() <= cell.lastPosition(); block = block.next())
      TakeBlock(block);
    if (!begun_) paragraph_ = {};
    EndParagraph(end);
    place_ = Place::Text;
  }

  // A line across the page is the lower edge of an empty paragraph.
  void TakeRuler(const QTextBlock& block) {
    if (begun_) EndParagraph(place_);
    begun_ = true;
    paragraph_ = {};
    paragraph_.borders[BottomSide].line = {BorderKind::Single, RulerWidth, RulerColor};
    paragraph_.spaceAfter = RulerSpace;
    lists_.Number(block, paragraph_.list);
    format_ = caret_;
    last_.reset();
  }

  void TakeBlock(const QTextBlock& block) {
    if (IsRuler(block)) return TakeRuler(block);
    const QTextTableCell cell = CellOf(block);
    const bool besideLast =
        cell.isValid() && last_ && cell.row() == last_->row() && cell.column() != last_->column();
    if (besideLast)
      AddText(u"\t", format_);
    else
      BeginParagraph(block);
    last_ = cell.isValid() ? std::optional(cell) : std::nullopt;
    for (auto part = block.begin(); !part.atEnd(); ++part) TakeFragment(part.fragment(), block);
  }

  void BeginParagraph(const QTextBlock& block) {
    if (begun_) EndParagraph(place_);
    begun_ = true;
    paragraph_ = FromHtmlBlock(block);
    paragraph_.ground = backgrounds_.GroundOf(block);
    frames_.SetFrame(block, paragraph_);
    lists_.Number(block, paragraph_.list);
    format_ = FromHtmlFormat(block.charFormat(), caret_);
  }

  // One at the end of a paragraph begins no line.
  void DropLastBreak() {
    if (page_.runs.size() <= firstRun_ || page_.text.back() != LineBreak) return;
    page_.text.pop_back();
    if (--page_.runs.back().length == 0) page_.runs.pop_back();
  }

  void EndParagraph(Place place) {
    DropLastBreak();
    const std::uint32_t mark = numbers_(format_);
    const auto length = static_cast<std::uint32_t>(page_.text.size() - paragraphStart_);
    page_.paragraphs.push_back({length, paragraphNumbers_(paragraph_), mark, place});
    begun_ = false;
    paragraphStart_ = page_.text.size();
    firstRun_ = page_.runs.size();
  }

  void TakeFragment(const QTextFragment& fragment, const QTextBlock& block) {
    const QTextCharFormat format = fragment.charFormat();
    format_ = FromHtmlFormat(format, caret_);
    format_.highlight = backgrounds_.HighlightOf(format, block);
    if (!format_.highlight && IsLightInk(format.foreground().color())) format_.color = caret_.color;
    if (!format.isImageFormat()) return AddText(fragment.text().toStdU16String(), format_);
    for (int i = 0; i < fragment.length(); ++i) TakePicture(format.toImageFormat());
  }

  void TakePicture(const QTextImageFormat& format) {
    Picture picture = OfItsOwnSize(DataOf(format.name()));
    if (picture.bytes.empty() && carried_) picture = std::exchange(carried_, {})();
    if (picture.bytes.empty())
      return AddText(format.stringProperty(QTextFormat::ImageAltText).toStdU16String(), format_);
    if (format.width() > 0 || format.height() > 0) {
      picture.widthTwips = FittingPictureSize(std::lround(format.width() * TwipsPerPixel));
      picture.heightTwips = FittingPictureSize(std::lround(format.height() * TwipsPerPixel));
    }
    page_.pictures.push_back(std::move(picture));
    Append(std::u16string(1, PictureMark), format_);
  }

  // What stands for pictures and hidden text in a page is nothing that comes along.
  void AddText(std::u16string text, const CharacterFormat& format) {
    std::erase(text, PictureMark);
    Append(text, format);
  }

  void Append(const std::u16string& text, const CharacterFormat& format) {
    if (text.empty()) return;
    const std::uint32_t number = numbers_(format);
    const auto length = static_cast<std::uint32_t>(text.size());
    page_.text += text;
    if (page_.runs.size() > firstRun_ && page_.runs.back().format == number)
      page_.runs.back().length += length;
    else
      page_.runs.push_back({length, number});
  }

  const QTextDocument& html_;
  FramedBlocks frames_;
  const CharacterFormat caret_;
  std::function<Picture()> carried_;
  const Backgrounds backgrounds_;
  Document page_;
  FormatNumbers<CharacterFormat> numbers_{page_.formats};
  FormatNumbers<ParagraphFormat> paragraphNumbers_{page_.paragraphFormats};
  CharacterFormat format_;
  ParagraphFormat paragraph_;
  std::optional<QTextTableCell> last_;
  Lists lists_;
  FormatNumbers<RowFormat> rowNumbers_{page_.rowFormats};
  bool begun_ = false;         // a paragraph
  Place place_ = Place::Text;  // of paragraphs that end as they come
  std::size_t paragraphStart_ = 0;
  std::size_t firstRun_ = 0;  // of the paragraph in hand
};

}  // namespace
}  // namespace richtext::html

namespace richtext {

Document ReadHtml(const QString& html, const CharacterFormat& caret,
                  const std::function<Picture()>& carried) {
  using namespace html;
  InertDocument document;
  document.setUndoRedoEnabled(false);
  document.setDefaultStyleSheet(HouseStyle);
  const PlainMarkup markup = WithPlainWords(html.left(html.indexOf(QLatin1String("<!--EndFragment-->"))));
  document.setHtml(WithListStarts(markup.html));
  CharacterFormat plain;
  plain.fontName = caret.fontName;
  plain.halfPoints = caret.halfPoints;
  plain.color = caret.color;
  return Reader(document, markup.frames, plain, carried).Read();
}

}  // namespace richtext
