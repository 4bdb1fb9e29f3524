#include "richtext/html/Styles.h"

#include <algorithm>
#include <optional>

#include <QtCore/QRegularExpression>

#include "richtext/html/Colors.h"

namespace richtext::html {
namespace {

QString BackgroundOf(const std::optional<QColor>& color) {
  return QStringLiteral("background-color:") + (color ? color->name() : QStringLiteral("transparent"));
}

QString InkOf(const std::optional<QColor>& color) {
  return color ? QStringLiteral("color:") + color->name() : QString();
}

// One of CSS, as the toolkit understands it.
QString Declaration(QStringView declaration) {
  const qsizetype colon = declaration.indexOf(u':');
  const QStringView name = declaration.left(std::max<qsizetype>(colon, 0)).trimmed();
  const auto is = [&](QStringView other) { return name.compare(other, Qt::CaseInsensitive) == 0; };
  const auto color = [&] { return FirstCssColor(declaration.mid(colon + 1)); };
  if (is(u"text-decoration-line"))
    return QStringLiteral("text-decoration") + declaration.mid(colon).toString();
  if (is(u"background") || is(u"background-color")) return BackgroundOf(color());
  if (is(u"color")) return InkOf(color());
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

}  // namespace

// What stands between marks outside brackets can be a declaration.
QString WithPlainColors(QStringView css) {
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
    if (attribute.key == u"style") css = attribute.value = WithPlainColors(attribute.value);
  if (tag.name == u"img") AddSizes(tag, css);
}

}  // namespace richtext::html
