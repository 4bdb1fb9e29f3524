#include "richtext/html/Styles.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include <QtCore/QRegularExpression>

#include "richtext/document/Twips.h"
#include "richtext/html/Colors.h"
#include "richtext/html/Lengths.h"

namespace richtext::html {
namespace {

constexpr double PointsPerInch = 72;

QString BackgroundOf(const std::optional<QColor>& color) {
  return QStringLiteral("background-color:") + (color ? color->name() : QStringLiteral("transparent"));
}

QString InkOf(const std::optional<QColor>& color) {
  return color ? QStringLiteral("color:") + color->name() : QString();
}

bool IsShareOfLetters(QStringView word) {
  return (word.endsWith(u"em") && !word.endsWith(u"rem")) || word.endsWith(u"ex");
}

QString Indent(QStringView word) {
  const std::optional<double> pixels = PixelsOf(word);
  return pixels ? QString::number(*pixels, 'f', 2) + QStringLiteral("px") : word.toString();
}

QString Margin(QStringView word) {
  return IsShareOfLetters(word) ? word.toString() : Indent(word);
}

// The toolkit knows no parts of a pixel here.
QString LetterSize(QStringView word) {
  const std::optional<double> pixels = PixelsOf(word);
  if (!pixels || IsShareOfLetters(word)) return word.toString();
  return QString::number(*pixels * PointsPerInch / PixelsPerInch, 'f', 2) + QStringLiteral("pt");
}

// A number without a unit is a share of the letters' height.
QString LineHeight(QStringView word) {
  if (IsShareOfLetters(word)) return word.chopped(2).toString();
  return word.back().isLetter() ? Indent(word) : word.toString();
}

QString WithWords(QStringView value, QString (*plain)(QStringView)) {
  QString words;
  for (const QStringView word : value.split(u' ', Qt::SkipEmptyParts)) words += u' ' + plain(word);
  return words;
}

// In quotes.
bool IsBlankText(QStringView value) {
  return value == u"' '" || value == u"\" \"";
}

// One of CSS, as the toolkit understands it.
QString Declaration(QStringView declaration) {
  const qsizetype colon = declaration.indexOf(u':');
  const QString name = declaration.left(std::max<qsizetype>(colon, 0)).trimmed().toString().toLower();
  const QString value = declaration.mid(colon + 1).trimmed().toString();
  const QString lower = value.toLower();
  const auto with = [&](QString (*plain)(QStringView)) { return name + u':' + WithWords(lower, plain); };
  if (name == u"text-decoration-line") return QStringLiteral("text-decoration:") + value;
  if (name == u"background" || name == u"background-color") return BackgroundOf(FirstCssColor(value));
  if (name == u"color") return InkOf(FirstCssColor(value));
  if (name == u"margin" || name.startsWith(u"margin-")) return with(Margin);
  if (name == u"text-indent") return with(Indent);
  if (name == u"font-size") return with(LetterSize);
  if (name == u"line-height") return with(LineHeight);
  if (name == u"list-style-type" && IsBlankText(value))
    return QStringLiteral("list-style-type:none;-qt-list-number-prefix:' '");
  return declaration.toString();
}

// A width of 80 for a style of "width: 80px" and one of 0, which is its own, for every other one.
void AddSizes(Tag& tag, const QString& css) {
  static const QRegularExpression size(
      QStringLiteral("(?:^|;)\\s*(width|height)\\s*:\\s*(?:(\\d{1,5})(?:\\.\\d*)?px)?"),
      QRegularExpression::CaseInsensitiveOption);
  for (auto found = size.globalMatch(css); found.hasNext();) {
    const QRegularExpressionMatch side = found.next();
    tag.attributes.push_back({side.captured(1).toLower(), QString::number(side.captured(2).toInt())});
  }
}

// The value of the last declaration of that name; empty where there is none.
QString ValueOf(const QString& css, QStringView name) {
  QString value;
  for (const QStringView declaration : QStringView(css).split(u';')) {
    const qsizetype colon = declaration.indexOf(u':');
    if (colon > 0 && declaration.left(colon).trimmed().compare(name, Qt::CaseInsensitive) == 0)
      value = declaration.mid(colon + 1).trimmed().toString().toLower();
  }
  return value;
}

void AddWidth(Tag& tag, const QString& css) {
  const QString told = ValueOf(css, u"width");
  const std::optional<double> pixels = PixelsOf(told);
  if (pixels && *pixels > 0)
    tag.attributes.push_back({QStringLiteral("width"), QString::number(std::lround(*pixels))});
  else if (told.endsWith(u'%'))
    tag.attributes.push_back({QStringLiteral("width"), told});
}

// The places of words that the toolkit does not find in styles.
void AddAlignment(Tag& tag, const QString& css) {
  constexpr struct {
    QStringView told;
    const char* name;
  } Places[] = {
      {u"justify", "justify"}, {u"end", "right"}, {u"-webkit-right", "right"}, {u"-webkit-center", "center"}};
  const QString told = ValueOf(css, u"text-align");
  for (const auto& place : Places)
    if (told == place.told) tag.attributes.push_back({QStringLiteral("align"), QLatin1String(place.name)});
}

}  // namespace

// What stands between marks outside brackets can be a declaration.
QString WithPlainValues(QStringView css) {
  QString plain;
  qsizetype from = 0;
  int depth = 0;
  for (qsizetype at = 0; at < css.size(); ++at) {
    const char16_t unit = css[at].unicode();
    if (unit == u'(') ++depth;
    if (unit == u')') --depth;
    const bool isMark = unit == u'{' || unit == u'}' || (unit == u';' && depth <= 0);
    if (!isMark) continue;
    plain += Declaration(css.mid(from, at - from)) + css[at];
    from = at + 1;
    depth = 0;
  }
  return plain + Declaration(css.mid(from));
}

void MakeStylesPlain(Tag& tag) {
  QString css;
  for (Attribute& attribute : tag.attributes)
    if (attribute.key == u"style") css = attribute.value = WithPlainValues(attribute.value);
  if (css.isEmpty()) return;
  if (tag.name == u"img") return AddSizes(tag, css);
  const bool hasWidth = tag.name == u"td" || tag.name == u"th" || tag.name == u"table" ||
                        tag.name == u"col" || tag.name == u"colgroup";
  if (hasWidth) AddWidth(tag, css);
  if (tag.name != u"table") AddAlignment(tag, css);
}

}  // namespace richtext::html
