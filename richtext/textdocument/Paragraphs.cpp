#include "richtext/textdocument/Paragraphs.h"

#include <algorithm>
#include <cmath>

#include "richtext/document/Limits.h"
#include "richtext/document/Twips.h"
#include "richtext/textdocument/BorderLine.h"
#include "richtext/textdocument/Formats.h"
#include "richtext/textdocument/PackedRow.h"
#include "richtext/textdocument/Rows.h"
#include "richtext/textdocument/TabStops.h"

namespace richtext {
namespace {

constexpr std::int32_t RoomForLabel = 480;  // twips
constexpr double SmallestLine = 2;          // pixels; a line of a spacing that would hide it
constexpr double SmallestShare = 20;        // percent of a line
constexpr double LargestShare = 1000;

double Pixels(std::int32_t twips) {
  return FittingIndent(twips) / TwipsPerPixel;
}

std::int32_t Twips(double pixels) {
  return static_cast<std::int32_t>(std::lround(pixels * TwipsPerPixel));
}

// The toolkit takes left for the side where a line begins; a page means the left edge.
Qt::Alignment ToAlignment(Alignment alignment, Direction direction) {
  switch (alignment) {
    case Alignment::Right:
      return Qt::AlignRight | Qt::AlignAbsolute;
    case Alignment::Center:
      return Qt::AlignHCenter;
    case Alignment::Justify:
      return Qt::AlignJustify;
    case Alignment::Left:
      break;
  }
  return direction == Direction::RightToLeft ? Qt::AlignLeft | Qt::AlignAbsolute : Qt::AlignLeft;
}

Alignment FromAlignment(Qt::Alignment alignment) {
  if (alignment & Qt::AlignRight) return Alignment::Right;
  if (alignment & Qt::AlignHCenter) return Alignment::Center;
  if (alignment & Qt::AlignJustify) return Alignment::Justify;
  return Alignment::Left;
}

// What is shown otherwise than told keeps what is told beside it.
void Keep(QTextBlockFormat& made, BoxProperty property, std::int32_t told, std::int32_t shown) {
  if (shown != FittingIndent(told)) made.setProperty(property, FittingIndent(told));
}

std::int32_t Told(const QTextBlockFormat& format, BoxProperty property, double pixels) {
  return format.hasProperty(property) ? format.intProperty(property) : Twips(pixels);
}

void SetLineHeight(QTextBlockFormat& made, const ParagraphFormat& format, double highest) {
  if (format.lineSpacingRule == LineSpacingRule::Single) return;
  made.setProperty(LineSpacingOfDocument, format.lineSpacing);
  if (format.lineSpacingRule == LineSpacingRule::Multiple)
    made.setLineHeight(std::clamp(FittingIndent(format.lineSpacing) / 2.4, SmallestShare, LargestShare),
                       QTextBlockFormat::ProportionalHeight);
  else
    made.setLineHeight(std::clamp(Pixels(format.lineSpacing), SmallestLine, highest),
                       format.lineSpacingRule == LineSpacingRule::AtLeast ? QTextBlockFormat::MinimumHeight
                                                                          : QTextBlockFormat::FixedHeight);
}

void SetSpacing(QTextBlockFormat& made, const ParagraphFormat& format, double highest) {
  const std::int32_t before = std::min(ShownSpaceBefore(format), Twips(highest));
  const std::int32_t after = std::min(ShownSpaceAfter(format), Twips(highest));
  if (format.autoBefore) made.setProperty(AutoSpaceBefore, true);
  if (format.autoAfter) made.setProperty(AutoSpaceAfter, true);
  if (before > 0) made.setTopMargin(Pixels(before));
  if (after > 0) made.setBottomMargin(Pixels(after));
  Keep(made, SpaceBeforeOfDocument, format.spaceBefore, before);
  Keep(made, SpaceAfterOfDocument, format.spaceAfter, after);
  SetLineHeight(made, format, highest);
}

LineSpacingRule FromHeightType(int type) {
  switch (type) {
    case QTextBlockFormat::ProportionalHeight:
      return LineSpacingRule::Multiple;
    case QTextBlockFormat::MinimumHeight:
      return LineSpacingRule::AtLeast;
    case QTextBlockFormat::FixedHeight:
      return LineSpacingRule::Exact;
    default:
      return LineSpacingRule::Single;
  }
}

bool IsItem(const ParagraphFormat& format) {
  return format.list.kind != ListKind::None;
}

// In twips, as they are shown.
struct Indents {
  std::int32_t left = 0;
  std::int32_t right = 0;
  std::int32_t first = 0;
};

// The text of an item begins where its other lines do: the label stands in the hanging indent.
Indents RoomForLabels(const ParagraphFormat& format) {
  Indents shown{FittingIndent(format.leftIndent), FittingIndent(format.rightIndent),
                FittingIndent(format.firstLineIndent)};
  if (!IsItem(format)) return shown;
  shown.left = std::max(RoomForLabel, shown.left);
  shown.first = std::max(0, shown.first);
  if (format.direction == Direction::RightToLeft) shown.right = std::max(RoomForLabel, shown.right);
  return shown;
}

// Of the side of a frame that stands outside of the text.
std::int32_t RoomForBorder(const ParagraphBorder& border) {
  return IsShown(border.line) ? border.space + Twips(WidthOf(border.line)) : 0;
}

Indents RoomForFrame(const ParagraphFormat& format) {
  Indents shown = RoomForLabels(format);
  if (format.borders == ParagraphBorders()) return shown;
  std::int32_t left = RoomForBorder(format.borders[LeftSide]);
  std::int32_t right = RoomForBorder(format.borders[RightSide]);
  if (IsItem(format)) (format.direction == Direction::RightToLeft ? right : left) += RoomForLabel;
  shown.left = std::max(shown.left, left);
  shown.right = std::max(shown.right, right);
  return shown;
}

Indents ShownIndents(const ParagraphFormat& format, double width) {
  Indents shown = RoomForFrame(format);
  const std::int32_t most = Twips(width) / 4 * 3;
  shown.left = std::min(shown.left, most);
  shown.right = std::min(shown.right, most - std::max(0, shown.left));
  shown.first = std::min(shown.first, most - std::max(0, shown.left) - std::max(0, shown.right));
  return shown;
}

void SetIndents(QTextBlockFormat& made, const ParagraphFormat& format, const Indents& shown) {
  if (shown.left != 0) made.setLeftMargin(Pixels(shown.left));
  if (shown.right != 0) made.setRightMargin(Pixels(shown.right));
  if (shown.first != 0) made.setTextIndent(Pixels(shown.first));
  Keep(made, LeftIndentOfDocument, format.leftIndent, shown.left);
  Keep(made, RightIndentOfDocument, format.rightIndent, shown.right);
  Keep(made, FirstIndentOfDocument, format.firstLineIndent, shown.first);
}

void SetList(QTextBlockFormat& made, const ListFormat& list) {
  made.setProperty(ListKindOfDocument, static_cast<int>(list.kind));
  made.setProperty(ListStartOfDocument, list.start);
  made.setProperty(ListLevelOfDocument, list.level);
  made.setProperty(TwinListOfDocument, list.twin);
  made.setProperty(TextBeforeNumber, QString::fromStdU16String(list.before));
  made.setProperty(TextAfterNumber, QString::fromStdU16String(list.after));
}

LineSpacingRule LineRuleOf(const QTextBlockFormat& format) {
  if (!format.hasProperty(LineRuleOfDocument)) return FromHeightType(format.lineHeightType());
  return static_cast<LineSpacingRule>(format.intProperty(LineRuleOfDocument));
}

}  // namespace

QTextBlockFormat ToBlockFormat(const ParagraphFormat& format, double width) {
  QTextBlockFormat made;
  const Indents shown = ShownIndents(format, width);
  made.setAlignment(ToAlignment(format.alignment, format.direction));
  if (format.direction == Direction::RightToLeft) made.setLayoutDirection(Qt::RightToLeft);
  SetIndents(made, format, shown);
  SetSpacing(made, format, width);
  SetTabs(made, format.tabs, shown.left, shown.first);
  if (IsItem(format)) SetList(made, format.list);
  if (format.borders != ParagraphBorders()) made.setProperty(BordersOfParagraph, Packed(format.borders));
  if (format.ground)
    made.setBackground(ToColor(*format.ground));
  else
    made.setBackground(Qt::NoBrush);  // told, so that the toolkit shows an empty one before a table
  return made;
}

ParagraphFormat FromBlockFormat(const QTextBlockFormat& format) {
  ParagraphFormat taken;
  taken.alignment = FromAlignment(format.alignment());
  if (format.layoutDirection() == Qt::RightToLeft) taken.direction = Direction::RightToLeft;
  taken.leftIndent = Told(format, LeftIndentOfDocument, format.leftMargin());
  taken.rightIndent = Told(format, RightIndentOfDocument, format.rightMargin());
  taken.firstLineIndent = Told(format, FirstIndentOfDocument, format.textIndent());
  taken.spaceBefore = Told(format, SpaceBeforeOfDocument, format.topMargin());
  taken.spaceAfter = Told(format, SpaceAfterOfDocument, format.bottomMargin());
  taken.autoBefore = format.boolProperty(AutoSpaceBefore);
  taken.autoAfter = format.boolProperty(AutoSpaceAfter);
  taken.lineSpacingRule = LineRuleOf(format);
  if (taken.lineSpacingRule != LineSpacingRule::Single)
    taken.lineSpacing = format.intProperty(LineSpacingOfDocument);
  if (IsListItem(format)) taken.list = ListOf(format);
  taken.tabs = TabsOf(format);
  if (format.background().style() != Qt::NoBrush) taken.ground = FromColor(format.background().color());
  if (format.hasProperty(BordersOfParagraph))
    taken.borders = UnpackedBorders(format.property(BordersOfParagraph).toByteArray());
  return taken;
}

QTextBlockFormat WithLineHeight(QTextBlockFormat format, double height) {
  format.setProperty(LineRuleOfDocument, static_cast<int>(LineRuleOf(format)));
  format.setLineHeight(height, QTextBlockFormat::FixedHeight);
  return format;
}

bool HasOtherLines(const QTextBlockFormat& format) {
  return format.hasProperty(LineRuleOfDocument);
}

ListFormat ListOf(const QTextBlockFormat& format) {
  return {static_cast<ListKind>(format.intProperty(ListKindOfDocument)),
          format.intProperty(ListStartOfDocument),
          format.intProperty(ListLevelOfDocument),
          format.stringProperty(TextBeforeNumber).toStdU16String(),
          format.stringProperty(TextAfterNumber).toStdU16String(),
          format.boolProperty(TwinListOfDocument)};
}

bool IsListItem(const QTextBlockFormat& format) {
  return format.intProperty(ListKindOfDocument) != static_cast<int>(ListKind::None);
}

QTextBlockFormat WithoutList(const QTextBlockFormat& format) {
  ParagraphFormat left = FromBlockFormat(format);
  const Indents shown = RoomForLabels(left);
  left.leftIndent = shown.left;
  left.rightIndent = shown.right;
  left.firstLineIndent = shown.first;
  left.list = {};
  const QTextBlockFormat made = ToBlockFormat(left);
  return IsInRow(format) ? InSameRow(made, format) : made;
}

QTextBlockFormat WithoutFrame(const QTextBlockFormat& format) {
  ParagraphFormat left = FromBlockFormat(format);
  left.borders = {};
  left.ground.reset();
  const QTextBlockFormat made = ToBlockFormat(left);
  return IsInRow(format) ? InSameRow(made, format) : made;
}

}  // namespace richtext
