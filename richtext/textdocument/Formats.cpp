#include "richtext/textdocument/Formats.h"

#include <algorithm>
#include <cmath>

#include "richtext/document/Limits.h"

namespace richtext {
namespace {

const char16_t ChosenFont[] = u"Verdana";
constexpr double ChosenSize = 12;

// What the toolkit cannot draw is drawn as what is nearest.
QTextCharFormat::UnderlineStyle DrawnUnderline(UnderlineKind kind) {
  switch (kind) {
    case UnderlineKind::None:
      return QTextCharFormat::NoUnderline;
    case UnderlineKind::Dotted:
    case UnderlineKind::ThickDotted:
      return QTextCharFormat::DotLine;
    case UnderlineKind::Dash:
    case UnderlineKind::LongDash:
    case UnderlineKind::ThickDash:
    case UnderlineKind::ThickLongDash:
      return QTextCharFormat::DashUnderline;
    case UnderlineKind::DashDot:
    case UnderlineKind::ThickDashDot:
      return QTextCharFormat::DashDotLine;
    case UnderlineKind::DashDotDot:
    case UnderlineKind::ThickDashDotDot:
      return QTextCharFormat::DashDotDotLine;
    case UnderlineKind::Wave:
    case UnderlineKind::ThickWave:
    case UnderlineKind::DoubleWave:
      return QTextCharFormat::WaveUnderline;
    default:
      return QTextCharFormat::SingleUnderline;
  }
}

UnderlineKind KindOf(const QTextCharFormat& format) {
  const auto told = static_cast<UnderlineKind>(format.intProperty(UnderlineOfDocument));
  if (told != UnderlineKind::None && DrawnUnderline(told) == format.underlineStyle()) return told;
  switch (format.underlineStyle()) {
    case QTextCharFormat::NoUnderline:
      return UnderlineKind::None;
    case QTextCharFormat::DotLine:
      return UnderlineKind::Dotted;
    case QTextCharFormat::DashUnderline:
      return UnderlineKind::Dash;
    case QTextCharFormat::DashDotLine:
      return UnderlineKind::DashDot;
    case QTextCharFormat::DashDotDotLine:
      return UnderlineKind::DashDotDot;
    case QTextCharFormat::WaveUnderline:
    case QTextCharFormat::SpellCheckUnderline:
      return UnderlineKind::Wave;
    default:
      return UnderlineKind::Single;
  }
}

QFont::Capitalization ToCapitalization(Capitals capitals) {
  if (capitals == Capitals::All) return QFont::AllUppercase;
  return capitals == Capitals::Small ? QFont::SmallCaps : QFont::MixedCase;
}

Capitals FromCapitalization(QFont::Capitalization capitalization) {
  if (capitalization == QFont::AllUppercase) return Capitals::All;
  return capitalization == QFont::SmallCaps ? Capitals::Small : Capitals::AsWritten;
}

QTextCharFormat::VerticalAlignment ToVerticalAlignment(VerticalPlace place) {
  if (place == VerticalPlace::Superscript) return QTextCharFormat::AlignSuperScript;
  return place == VerticalPlace::Subscript ? QTextCharFormat::AlignSubScript : QTextCharFormat::AlignNormal;
}

VerticalPlace FromVerticalAlignment(QTextCharFormat::VerticalAlignment alignment) {
  if (alignment == QTextCharFormat::AlignSuperScript) return VerticalPlace::Superscript;
  return alignment == QTextCharFormat::AlignSubScript ? VerticalPlace::Subscript : VerticalPlace::Baseline;
}

void SetFont(QTextCharFormat& made, const CharacterFormat& format) {
  const QString name = QString::fromStdString(format.fontName);
  made.setFontFamilies({name.isEmpty() ? QString::fromUtf16(ChosenFont) : name});
  if (name.isEmpty()) made.setProperty(NamelessFont, true);
  SetFontSize(made, format.halfPoints / 2.0);
}

void SetLink(QTextCharFormat& made, const std::string& address) {
  if (address.empty()) return;
  made.setAnchor(true);
  made.setAnchorHref(QString::fromStdString(address));
}

void ClearLink(QTextCharFormat& format) {
  format.clearProperty(QTextFormat::IsAnchor);
  format.clearProperty(QTextFormat::AnchorHref);
}

}  // namespace

QString FontNameOf(const QTextCharFormat& format) {
  const QStringList families = format.fontFamilies().toStringList();
  return families.isEmpty() ? QString::fromUtf16(ChosenFont) : families.front();
}

double FontSizeOf(const QTextCharFormat& format) {
  const double points = format.fontPointSize();
  return points > 0 ? points : ChosenSize;
}

std::uint32_t ColorOf(const QTextCharFormat& format) {
  return format.foreground().style() == Qt::NoBrush ? 0 : FromColor(format.foreground().color());
}

bool IsUnderlined(const QTextCharFormat& format) {
  return format.underlineStyle() != QTextCharFormat::NoUnderline;
}

void SetFontName(QTextCharFormat& format, const QString& name) {
  format.setFontFamilies(QStringList{name});
  format.setProperty(NamelessFont, false);
}

void SetFontSize(QTextCharFormat& format, double points) {
  format.setFontPointSize(std::clamp(std::round(points * 2), 1.0, double{MaxHalfPoints}) / 2);
}

void SetUnderline(QTextCharFormat& format, UnderlineKind kind) {
  format.setUnderlineStyle(DrawnUnderline(kind));
  format.setProperty(UnderlineOfDocument, static_cast<int>(kind));
}

// Only what differs from plain text is set: the toolkit compares formats property by property.
QTextCharFormat ToTextFormat(const CharacterFormat& format) {
  QTextCharFormat made;
  SetFont(made, format);
  if (format.bold) made.setFontWeight(QFont::Bold);
  if (format.italic) made.setFontItalic(true);
  if (format.strikethrough) made.setFontStrikeOut(true);
  if (format.underline != UnderlineKind::None) SetUnderline(made, format.underline);
  if (format.capitals != Capitals::AsWritten) made.setFontCapitalization(ToCapitalization(format.capitals));
  if (format.place != VerticalPlace::Baseline) made.setVerticalAlignment(ToVerticalAlignment(format.place));
  if (format.color) made.setForeground(ToColor(*format.color));
  if (format.highlight) made.setBackground(ToColor(*format.highlight));
  SetLink(made, format.link);
  return made;
}

CharacterFormat FromTextFormat(const QTextCharFormat& format) {
  CharacterFormat taken;
  if (!format.boolProperty(NamelessFont)) taken.fontName = FontNameOf(format).toStdString();
  taken.halfPoints = static_cast<std::int32_t>(std::lround(FontSizeOf(format) * 2));
  taken.bold = format.fontWeight() > QFont::Medium;
  taken.italic = format.fontItalic();
  taken.strikethrough = format.fontStrikeOut();
  taken.underline = KindOf(format);
  taken.capitals = FromCapitalization(format.fontCapitalization());
  taken.place = FromVerticalAlignment(format.verticalAlignment());
  if (format.foreground().style() != Qt::NoBrush) taken.color = FromColor(format.foreground().color());
  if (format.background().style() != Qt::NoBrush) taken.highlight = FromColor(format.background().color());
  taken.link = format.anchorHref().toStdString();
  return taken;
}

QTextCharFormat ToMarkFormat(const CharacterFormat& format) {
  QTextCharFormat made = ToTextFormat(format);
  ClearLink(made);
  if (format.hidden) made.setProperty(HiddenMark, true);
  return made;
}

CharacterFormat FromMarkFormat(const QTextCharFormat& format) {
  CharacterFormat taken = FromTextFormat(format);
  taken.link.clear();
  taken.hidden = format.boolProperty(HiddenMark);
  return taken;
}

}  // namespace richtext
