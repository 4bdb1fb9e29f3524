#include "richtext/box/ColorLetters.h"

#include <algorithm>
#include <climits>
#include <iterator>

#include <QtGui/QGlyphRun>
#include <QtGui/QPainter>
#include <QtGui/QRawFont>
#include <QtGui/QTextLayout>

namespace richtext {
namespace {

constexpr double Sharp = 4;  // pixels of the picture to one of the page

bool HasColors(const QRawFont& font) {
  constexpr const char* Tables[] = {"CBDT", "COLR", "sbix", "SVG "};
  return std::any_of(std::begin(Tables), std::end(Tables),
                     [&](const char* table) { return !font.fontTable(table).isEmpty(); });
}

}  // namespace

// Emoji and the like are beyond the first plane; those within it are signs such as stars and hearts.
bool MayHaveColors(QStringView text) {
  return std::any_of(text.begin(), text.end(), [](QChar unit) {
    const char16_t code = unit.unicode();
    return (code >= 0xD83C && code <= 0xD83E) || (code >= 0x2190 && code < 0x2C00);
  });
}

QImage ColorLetter(const QString& letter, const QTextCharFormat& format, QSizeF& size) {
  QTextLayout layout(letter, format.font());
  layout.beginLayout();
  QTextLine line = layout.createLine();
  line.setLineWidth(INT_MAX);
  layout.endLayout();
  const QList<QGlyphRun> glyphs = layout.glyphRuns();
  const bool isColored = std::any_of(glyphs.begin(), glyphs.end(),
                                     [](const QGlyphRun& run) { return HasColors(run.rawFont()); });
  size = {line.naturalTextWidth(), line.height()};
  if (!isColored || size.isEmpty()) return {};
  QImage image((size * Sharp).toSize(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.scale(Sharp, Sharp);
  layout.draw(&painter, {});
  return image;
}

}  // namespace richtext
