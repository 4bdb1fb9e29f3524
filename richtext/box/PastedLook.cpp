#include "richtext/box/PastedLook.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include "richtext/document/FormatNumbers.h"
#include "richtext/document/Twips.h"
#include "richtext/html/Formats.h"
#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/RowTables.h"

namespace richtext {
namespace {

// Of each paragraph, whether its cell has one.
std::vector<bool> GroundsOfCells(const Document& page) {
  std::vector<bool> grounds;
  std::size_t row = 0, cell = 0;
  for (const Paragraph& paragraph : page.paragraphs) {
    const bool isInRow = paragraph.place != Place::Text;
    grounds.push_back(isInRow && page.rowFormats[page.rows[row]].cells[cell].ground.has_value());
    if (paragraph.place == Place::CellEnd) ++cell;
    if (paragraph.place == Place::RowEnd) cell = 0, ++row;
  }
  return grounds;
}

struct PlacedPicture {
  int from, to;
  QTextImageFormat format;
};

QTextImageFormat Scaled(QTextImageFormat format, double share) {
  const auto side = [&](double pixels, BoxProperty twips) {
    format.setProperty(twips, static_cast<int>(std::lround(pixels * share * TwipsPerPixel)));
    return pixels * share;
  };
  format.setWidth(side(format.width(), PictureTwipsWide));
  format.setHeight(side(format.height(), PictureTwipsHigh));
  return format;
}

double RoomIn(const QTextBlock& block) {
  const QTextDocument& document = *block.document();
  const double page = RoomOnPage(document);  // the picture may be what brings the scroll bar
  const QTextTable* const row = TableAt(document, block.position());
  const QTextBlockFormat format = block.blockFormat();
  const double room = row ? RoomInCell(*row, block.position(), page) : page;
  return std::max(1.0, std::floor(room - format.leftMargin() - format.rightMargin()));
}

}  // namespace

void MakeLegible(Document& page, const CharacterFormat& caret) {
  FormatNumbers<CharacterFormat> numbers(page.formats);
  const std::vector<bool> grounds = GroundsOfCells(page);
  std::size_t run = 0;
  for (std::size_t i = 0; i < page.paragraphs.size(); ++i) {
    const bool hasGround = grounds[i] || page.paragraphFormats[page.paragraphs[i].format].ground;
    for (std::uint32_t left = page.paragraphs[i].length; left > 0; left -= page.runs[run++].length) {
      CharacterFormat look = page.formats[page.runs[run].format];
      if (hasGround || look.highlight || !look.color || !html::IsLightInk(ToColor(*look.color))) continue;
      look.color = caret.color;
      page.runs[run].format = numbers(look);
    }
  }
}

void FitPictures(QTextDocument& document, int from, int to) {
  std::vector<PlacedPicture> wide;
  for (QTextBlock block = document.findBlock(from); block.isValid() && block.position() < to;
       block = block.next())
    for (auto it = block.begin(); !it.atEnd(); ++it) {
      const QTextFragment part = it.fragment();
      const QTextImageFormat format = part.charFormat().toImageFormat();
      const int begin = std::max(from, part.position()), end = std::min(to, part.position() + part.length());
      if (!format.isValid() || begin >= end || format.width() <= RoomIn(block)) continue;
      wide.push_back({begin, end, Scaled(format, RoomIn(block) / format.width())});
    }
  QTextCursor cursor(&document);
  for (const PlacedPicture& picture : wide) {
    cursor.setPosition(picture.from);
    cursor.setPosition(picture.to, QTextCursor::KeepAnchor);
    cursor.setCharFormat(picture.format);
  }
}

}  // namespace richtext
