#include "richtext/html/Formats.h"

#include <algorithm>
#include <cmath>

#include <QtGui/QFontDatabase>
#include <QtGui/QTextList>

#include "richtext/document/Limits.h"
#include "richtext/document/ListLabel.h"
#include "richtext/document/Twips.h"
#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/Paragraphs.h"

namespace richtext::html {
namespace {

constexpr double HalfPointsPerPixel = 1.5;  // 96 pixels to the inch
constexpr int ListStep = 720;               // twips that each level of a list goes in
constexpr int LabelWidth = 360;             // twips

// The first one that is there; a page keeps one name, and one that is nowhere would look like anything.
std::string FontName(const QTextCharFormat& format, const CharacterFormat& caret) {
  for (const QString& family : format.fontFamilies().toStringList()) {
    if (family.startsWith(QLatin1String("monospace"))) return "Courier New";
    if (QFontDatabase::hasFamily(family)) return family.toStdString();
  }
  return caret.fontName;
}

std::int32_t HalfPoints(const QTextCharFormat& format, const CharacterFormat& caret) {
  constexpr double Steps[] = {0.7, 0.8, 1, 1.2, 1.5, 2, 2.4};
  double size = caret.halfPoints;
  if (format.hasProperty(QTextFormat::FontPointSize)) size = format.fontPointSize() * 2;
  if (format.hasProperty(QTextFormat::FontPixelSize))
    size = format.intProperty(QTextFormat::FontPixelSize) * HalfPointsPerPixel;
  size *= Steps[std::clamp(format.intProperty(QTextFormat::FontSizeAdjustment) + 2, 0, 6)];
  return static_cast<std::int32_t>(std::lround(std::clamp<double>(size, 1, MaxHalfPoints)));
}

std::u16string Bullet(QTextListFormat::Style style) {
  if (style == QTextListFormat::ListCircle) return u"\u25e6";
  return style == QTextListFormat::ListSquare ? u"\u25aa" : u"\u2022";
}

ListKind KindOf(QTextListFormat::Style style) {
  switch (style) {
    case QTextListFormat::ListDecimal:
      return ListKind::Decimal;
    case QTextListFormat::ListLowerAlpha:
      return ListKind::LowerLetter;
    case QTextListFormat::ListUpperAlpha:
      return ListKind::UpperLetter;
    case QTextListFormat::ListLowerRoman:
      return ListKind::LowerRoman;
    case QTextListFormat::ListUpperRoman:
      return ListKind::UpperRoman;
    case QTextListFormat::ListStyleUndefined:
      return ListKind::None;
    default:
      return ListKind::Bullet;
  }
}

void SetList(ParagraphFormat& made, const QTextListFormat& format) {
  made.list.kind = KindOf(format.style());
  const bool isToldBlank = made.list.kind == ListKind::None && format.numberPrefix() == QLatin1String(" ");
  if (isToldBlank) made.list = BulletList(u" ");
  if (made.list.kind == ListKind::None) return;
  made.list.level = std::max(format.indent() - 1, 0);
  if (made.list.kind == ListKind::Bullet && !isToldBlank) made.list.before = Bullet(format.style());
  if (made.list.kind != ListKind::Bullet) made.list.after.assign(1, u'.');
  made.leftIndent = FittingIndent(made.leftIndent + (made.list.level + 1) * ListStep);
  made.firstLineIndent = -LabelWidth;
  made.list = FittingList(made.list);
}

// The rule and the measure are set in a form that the box's own formats share.
void SetLineHeight(ParagraphFormat& made, const QTextBlockFormat& format) {
  if (format.lineHeightType() == QTextBlockFormat::LineDistanceHeight || !(format.lineHeight() > 0)) return;
  const bool isShare = made.lineSpacingRule == LineSpacingRule::Multiple;
  const double height = format.lineHeight() * (isShare ? 2.4 : TwipsPerPixel);
  made.lineSpacing = static_cast<std::int32_t>(std::min<double>(height, MaxIndent));
}

// Of a cell that tells none, the table's.
Border BorderOf(QTextFrameFormat::BorderStyle style, double width, const QBrush& brush,
                const QTextTableFormat& table) {
  const bool isOwn = style != QTextFrameFormat::BorderStyle_None && width > 0;
  const double pixels = isOwn ? width : table.border();
  if (!(pixels > 0)) return {};
  const double twips = std::min(pixels * TwipsPerPixel, double{MaxBorder});
  Border border{BorderKind::Single, static_cast<std::int32_t>(std::lround(twips)), {}};
  if (const QColor ink = brush.color(); isOwn && brush.style() != Qt::NoBrush && ink != Qt::black)
    border.color = FromColor(ink);
  return border;
}

}  // namespace

CharacterFormat FromHtmlFormat(const QTextCharFormat& format, const CharacterFormat& caret) {
  CharacterFormat made = FromTextFormat(format);
  made.fontName = FontName(format, caret);
  made.halfPoints = HalfPoints(format, caret);
  if (!made.color || !format.foreground().color().isValid()) made.color = caret.color;
  made.highlight.reset();
  return made;
}

ParagraphFormat FromHtmlBlock(const QTextBlock& block) {
  const QTextBlockFormat format = block.blockFormat();
  ParagraphFormat made = FromBlockFormat(format);
  for (std::int32_t* measure : {&made.leftIndent, &made.rightIndent, &made.firstLineIndent})
    *measure = FittingIndent(*measure);
  made.leftIndent = std::max(made.leftIndent, 0);
  made.rightIndent = std::max(made.rightIndent, 0);
  made.spaceBefore = std::clamp(made.spaceBefore, 0, MaxIndent);
  made.spaceAfter = std::clamp(made.spaceAfter, 0, MaxIndent);
  const bool toldNoSide = !(format.alignment() & Qt::AlignAbsolute);
  if (made.direction == Direction::RightToLeft && made.alignment == Alignment::Left && toldNoSide)
    made.alignment = Alignment::Right;
  made.tabs.clear();
  made.ground.reset();
  SetLineHeight(made, format);
  made.leftIndent = FittingIndent(made.leftIndent + format.indent() * ListStep);
  if (const QTextList* list = block.textList()) SetList(made, list->format());
  return made;
}

CellFormat FromHtmlCell(const QTextTableCell& cell, int row, const QTextTableFormat& table) {
  CellFormat made;
  const QTextTableCellFormat format = cell.format().toTableCellFormat();
  if (cell.rowSpan() > 1) made.down = cell.row() == row ? Merging::First : Merging::Continued;
  made.borders = {
      BorderOf(format.topBorderStyle(), format.topBorder(), format.topBorderBrush(), table),
      BorderOf(format.leftBorderStyle(), format.leftBorder(), format.leftBorderBrush(), table),
      BorderOf(format.bottomBorderStyle(), format.bottomBorder(), format.bottomBorderBrush(), table),
      BorderOf(format.rightBorderStyle(), format.rightBorder(), format.rightBorderBrush(), table)};
  if (format.verticalAlignment() == QTextCharFormat::AlignMiddle) made.place = PlaceInCell::Center;
  if (format.verticalAlignment() == QTextCharFormat::AlignBottom) made.place = PlaceInCell::Bottom;
  return made;
}

bool IsLightInk(const QColor& color) {
  return qGray(color.rgb()) > 180 && color.hsvSaturation() < 64;
}

bool IsLikePaper(const QColor& color) {
  const auto [least, most] = std::minmax({color.red(), color.green(), color.blue()});
  return least >= 240 || (least >= 224 && most - least <= 16);
}

bool IsLightGround(const QColor& color) {
  return qGray(color.rgb()) > 180 && color.rgb() != qRgb(255, 255, 255);
}

bool IsMarkersColor(const QColor& color) {
  return color.hsvSaturation() >= 64 && color.value() >= 160;
}

}  // namespace richtext::html
