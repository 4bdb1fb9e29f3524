#include "richtext/BoxFormats.h"

#include <algorithm>
#include <cmath>

namespace richtext {
namespace {

const char16_t ChosenFont[] = u"Verdana";
constexpr double ChosenSize = 12;
constexpr std::int32_t WidestIndent = 31680;  // twips, the most that the format knows

double Pixels(std::int32_t twips) {
  return std::clamp(twips, -WidestIndent, WidestIndent) / TwipsPerPixel;
}

std::int32_t Twips(double pixels) {
  return static_cast<std::int32_t>(std::lround(pixels * TwipsPerPixel));
}

Qt::Alignment ToAlignment(Alignment alignment) {
  switch (alignment) {
    case Alignment::Right:
      return Qt::AlignRight;
    case Alignment::Center:
      return Qt::AlignHCenter;
    case Alignment::Justify:
      return Qt::AlignJustify;
    case Alignment::Left:
      break;
  }
  return Qt::AlignLeft;
}

Alignment FromAlignment(Qt::Alignment alignment) {
  if (alignment & Qt::AlignRight) return Alignment::Right;
  if (alignment & Qt::AlignHCenter) return Alignment::Center;
  if (alignment & Qt::AlignJustify) return Alignment::Justify;
  return Alignment::Left;
}

}  // namespace

QColor ToColor(std::uint32_t bgr) {
  return QColor(bgr & 0xff, (bgr >> 8) & 0xff, (bgr >> 16) & 0xff);
}

std::uint32_t FromColor(const QColor& color) {
  return static_cast<std::uint32_t>(color.red() | color.green() << 8 | color.blue() << 16);
}

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

void SetFontName(QTextCharFormat& format, const QString& name) {
  format.setFontFamilies(QStringList{name});
  format.setProperty(NamelessFont, false);
}

void SetFontSize(QTextCharFormat& format, double points) {
  format.setFontPointSize(std::clamp(std::round(points * 2), 1.0, double{LargestFont}) / 2);
}

QTextCharFormat ToTextFormat(const CharacterFormat& format) {
  QTextCharFormat made;
  const QString name = QString::fromStdString(format.fontName);
  SetFontName(made, name.isEmpty() ? QString::fromUtf16(ChosenFont) : name);
  made.setProperty(NamelessFont, name.isEmpty());
  SetFontSize(made, format.halfPoints / 2.0);
  made.setFontWeight(format.bold ? QFont::Bold : QFont::Normal);
  made.setFontItalic(format.italic);
  made.setFontStrikeOut(format.strikethrough);
  made.setFontUnderline(format.underline != UnderlineKind::None);
  if (format.color) made.setForeground(ToColor(*format.color));
  return made;
}

CharacterFormat FromTextFormat(const QTextCharFormat& format) {
  CharacterFormat taken;
  if (!format.boolProperty(NamelessFont)) taken.fontName = FontNameOf(format).toStdString();
  taken.halfPoints = static_cast<std::int32_t>(std::lround(FontSizeOf(format) * 2));
  taken.bold = format.fontWeight() > QFont::Medium;
  taken.italic = format.fontItalic();
  taken.strikethrough = format.fontStrikeOut();
  taken.underline = format.fontUnderline() ? UnderlineKind::Single : UnderlineKind::None;
  if (format.foreground().style() != Qt::NoBrush) taken.color = ColorOf(format);
  return taken;
}

QTextBlockFormat ToBlockFormat(const ParagraphFormat& format) {
  QTextBlockFormat made;
  made.setAlignment(ToAlignment(format.alignment));
  made.setLeftMargin(Pixels(format.leftIndent));
  made.setRightMargin(Pixels(format.rightIndent));
  made.setTextIndent(Pixels(format.firstLineIndent));
  return made;
}

ParagraphFormat FromBlockFormat(const QTextBlockFormat& format) {
  ParagraphFormat taken;
  taken.alignment = FromAlignment(format.alignment());
  taken.leftIndent = Twips(format.leftMargin());
  taken.rightIndent = Twips(format.rightMargin());
  taken.firstLineIndent = Twips(format.textIndent());
  return taken;
}

}  // namespace richtext
