#include "richtext/textdocument/Paragraphs.h"

#include <algorithm>
#include <cmath>

#include <QtCore/QLocale>

#include "richtext/document/Limits.h"
#include "richtext/document/Twips.h"
#include "richtext/textdocument/Formats.h"

namespace richtext {
namespace {

constexpr std::int32_t RoomForLabel = 480;  // twips
constexpr double SmallestLine = 2;          // pixels; a line of a spacing that would hide it
constexpr double SmallestShare = 20;        // percent of a line
constexpr char16_t StopOfIndent = 0xFFFF;   // marks the stop that a hanging indent makes by itself

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

void SetSpacing(QTextBlockFormat& made, const ParagraphFormat& format) {
  if (format.spaceBefore > 0) made.setTopMargin(Pixels(format.spaceBefore));
  if (format.spaceAfter > 0) made.setBottomMargin(Pixels(format.spaceAfter));
  if (format.lineSpacingRule == LineSpacingRule::Single) return;
  made.setProperty(LineSpacingOfDocument, format.lineSpacing);
  const double pixels = std::max(Pixels(format.lineSpacing), SmallestLine);
  if (format.lineSpacingRule == LineSpacingRule::Multiple)
    made.setLineHeight(std::max(FittingIndent(format.lineSpacing) / 2.4, SmallestShare),
                       QTextBlockFormat::ProportionalHeight);
  else
    made.setLineHeight(pixels, format.lineSpacingRule == LineSpacingRule::AtLeast
                                   ? QTextBlockFormat::MinimumHeight
                                   : QTextBlockFormat::FixedHeight);
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

QTextOption::TabType ToTabType(TabKind kind) {
  constexpr QTextOption::TabType Types[] = {QTextOption::LeftTab, QTextOption::RightTab,
                                            QTextOption::CenterTab, QTextOption::DelimiterTab};
  return Types[static_cast<std::size_t>(kind)];
}

TabKind FromTabType(QTextOption::TabType type) {
  switch (type) {
    case QTextOption::RightTab:
      return TabKind::Right;
    case QTextOption::CenterTab:
      return TabKind::Center;
    case QTextOption::DelimiterTab:
      return TabKind::Decimal;
    default:
      return TabKind::Left;
  }
}

bool IsItem(const ParagraphFormat& format) {
  return format.list.kind != ListKind::None;
}

// The text of an item begins where its other lines do: the label stands in the hanging indent.
std::int32_t ShownFirstIndent(const ParagraphFormat& format) {
  return IsItem(format) ? std::max(0, format.firstLineIndent) : format.firstLineIndent;
}

std::int32_t ShownLeftIndent(const ParagraphFormat& format) {
  return IsItem(format) ? std::max(RoomForLabel, format.leftIndent) : format.leftIndent;
}

std::int32_t ShownRightIndent(const ParagraphFormat& format) {
  const bool hasLabel = IsItem(format) && format.direction == Direction::RightToLeft;
  return hasLabel ? std::max(RoomForLabel, format.rightIndent) : format.rightIndent;
}

void SetIndents(QTextBlockFormat& made, const ParagraphFormat& format) {
  if (ShownLeftIndent(format) != 0) made.setLeftMargin(Pixels(ShownLeftIndent(format)));
  if (ShownRightIndent(format) != 0) made.setRightMargin(Pixels(ShownRightIndent(format)));
  if (ShownFirstIndent(format) != 0) made.setTextIndent(Pixels(ShownFirstIndent(format)));
}

// A page counts from the edge of the text, the toolkit from where the first line begins.
std::int32_t WhereLineBegins(const ParagraphFormat& format) {
  return FittingIndent(ShownLeftIndent(format)) + FittingIndent(ShownFirstIndent(format));
}

QChar DecimalPoint() {
  const QString point = QLocale().decimalPoint();
  return point.isEmpty() ? QChar(u'.') : point.front();
}

void SetTabs(QTextBlockFormat& made, const ParagraphFormat& format) {
  QList<QTextOption::Tab> tabs;
  const std::int32_t begin = WhereLineBegins(format);
  for (const TabStop& stop : format.tabs)
    tabs.append({(stop.position - begin) / TwipsPerPixel, ToTabType(stop.kind), DecimalPoint()});
  if (ShownFirstIndent(format) < 0)
    tabs.append({-Pixels(format.firstLineIndent), QTextOption::LeftTab, QChar(StopOfIndent)});
  std::stable_sort(tabs.begin(), tabs.end(),
                   [](const auto& one, const auto& other) { return one.position < other.position; });
  if (!tabs.isEmpty()) made.setTabPositions(tabs);
}

std::vector<TabStop> TabsOf(const QTextBlockFormat& format, std::int32_t begin) {
  std::vector<TabStop> stops;
  for (const QTextOption::Tab& tab : format.tabPositions())
    if (tab.delimiter != QChar(StopOfIndent))
      stops.push_back({Twips(tab.position) + begin, FromTabType(tab.type)});
  return stops;
}

void SetList(QTextBlockFormat& made, const ParagraphFormat& format) {
  const ListFormat& list = format.list;
  made.setProperty(LeftIndentOfDocument, FittingIndent(format.leftIndent));
  made.setProperty(RightIndentOfDocument, FittingIndent(format.rightIndent));
  made.setProperty(FirstIndentOfDocument, FittingIndent(format.firstLineIndent));
  made.setProperty(ListKindOfDocument, static_cast<int>(list.kind));
  made.setProperty(ListStartOfDocument, list.start);
  made.setProperty(ListLevelOfDocument, list.level);
  made.setProperty(TwinListOfDocument, list.twin);
  made.setProperty(TextBeforeNumber, QString::fromStdU16String(list.before));
  made.setProperty(TextAfterNumber, QString::fromStdU16String(list.after));
}

void TakeList(const QTextBlockFormat& format, ParagraphFormat& taken) {
  taken.leftIndent = format.intProperty(LeftIndentOfDocument);
  taken.rightIndent = format.intProperty(RightIndentOfDocument);
  taken.firstLineIndent = format.intProperty(FirstIndentOfDocument);
  taken.list = ListOf(format);
}

}  // namespace

QTextBlockFormat ToBlockFormat(const ParagraphFormat& format) {
  QTextBlockFormat made;
  made.setAlignment(ToAlignment(format.alignment, format.direction));
  if (format.direction == Direction::RightToLeft) made.setLayoutDirection(Qt::RightToLeft);
  SetIndents(made, format);
  SetSpacing(made, format);
  SetTabs(made, format);
  if (IsItem(format)) SetList(made, format);
  return made;
}

ParagraphFormat FromBlockFormat(const QTextBlockFormat& format) {
  ParagraphFormat taken;
  taken.alignment = FromAlignment(format.alignment());
  if (format.layoutDirection() == Qt::RightToLeft) taken.direction = Direction::RightToLeft;
  taken.leftIndent = Twips(format.leftMargin());
  taken.rightIndent = Twips(format.rightMargin());
  taken.firstLineIndent = Twips(format.textIndent());
  taken.spaceBefore = Twips(format.topMargin());
  taken.spaceAfter = Twips(format.bottomMargin());
  taken.lineSpacingRule = FromHeightType(format.lineHeightType());
  if (taken.lineSpacingRule != LineSpacingRule::Single)
    taken.lineSpacing = format.intProperty(LineSpacingOfDocument);
  if (IsListItem(format)) TakeList(format, taken);
  taken.tabs = TabsOf(format, WhereLineBegins(taken));
  return taken;
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
  left.list = {};
  left.firstLineIndent = std::max(0, left.firstLineIndent);
  return ToBlockFormat(left);
}

}  // namespace richtext
