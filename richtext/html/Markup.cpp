#include "richtext/html/Markup.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include <QtCore/QRegularExpression>

#include "richtext/html/Colors.h"
#include "richtext/html/Tables.h"
#include "richtext/html/Tag.h"

namespace richtext::html {
namespace {

constexpr int MaxDepth = 200;
constexpr qsizetype FewCells = 10'000;
constexpr qsizetype LettersOfCell = 2;  // what each cell beyond these must take of the markup

// Elements that end by themselves where the next one begins.
constexpr QStringView FlatElements[] = {
    u"area", u"base", u"br", u"col",   u"dd",    u"dt", u"embed", u"hr", u"img",   u"input", u"li",
    u"link", u"meta", u"p",  u"param", u"tbody", u"td", u"tfoot", u"th", u"thead", u"tr",    u"wbr"};

QString Declaration(QStringView declaration) {
  const qsizetype colon = declaration.indexOf(u':');
  const QStringView name = declaration.left(std::max<qsizetype>(colon, 0)).trimmed();
  const auto is = [&](QStringView other) { return name.compare(other, Qt::CaseInsensitive) == 0; };
  const bool isBackground = is(u"background") || is(u"background-color");
  if (is(u"text-decoration-line"))
    return QStringLiteral("text-decoration") + declaration.mid(colon).toString();
  if (!isBackground && !is(u"color")) return declaration.toString();
  const std::optional<QColor> color = FirstCssColor(declaration.mid(colon + 1));
  if (isBackground)
    return QStringLiteral("background-color:") + (color ? color->name() : QStringLiteral("transparent"));
  return color ? QStringLiteral("color:") + color->name() : QString();
}

// Of a style attribute or a sheet: what stands between marks outside brackets can be a declaration.
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

class Rewriting {
 public:
  explicit Rewriting(const QString& html) : html_(html), cells_(FewCells + html.size() / LettersOfCell) {
    made_.reserve(html.size());
  }

  QString Rewrite() {
    for (qsizetype tag = html_.indexOf(u'<'); tag >= 0; tag = html_.indexOf(u'<', at_)) {
      CopyTo(tag);
      TakeNext();
    }
    CopyTo(html_.size());
    return std::move(made_);
  }

 private:
  void CopyTo(qsizetype end) {
    made_ += html_.mid(at_, end - at_);
    at_ = end;
  }

  void TakeNext() {
    const QStringView next = html_.mid(at_ + 1, 1);
    if (next == u"!" || next == u"?") return LeaveOut();
    if (!IsTagAt(html_, at_)) return TakeBracket();
    Tag tag = TakeTag(html_, at_);
    if (tag.name.isEmpty() || (!tag.endsItself && !Keeps(tag.name, tag.closes))) return;
    if (!cells_.Take(tag)) return FlattenCell(tag.name);
    MakeStylesPlain(tag);
    made_ += Written(tag);
    if (!tag.closes && tag.name == u"style") TakeSheet();
  }

  // Comments, declarations and instructions, which end elsewhere for the toolkit. An empty comment is left,
  // behind which it skips blanks.
  void LeaveOut() {
    const QStringView mark = html_.mid(at_).startsWith(u"<!--") ? u"-->" : u">";
    const qsizetype end = html_.indexOf(mark, at_ + 2);
    at_ = end < 0 ? html_.size() : end + mark.size();
    made_ += QStringLiteral("<!---->");
  }

  // The toolkit would look for a name behind blanks and in quotes.
  void TakeBracket() {
    made_ += QStringLiteral("&lt;");
    ++at_;
  }

  void FlattenCell(QStringView name) {
    made_ += name == u"tr" ? QStringLiteral("<br>") : QStringLiteral(" ");
  }

  bool Keeps(const QString& name, bool closes) {
    if (std::find(std::begin(FlatElements), std::end(FlatElements), name) != std::end(FlatElements))
      return true;
    int& count = closes ? (dropped_ > 0 ? dropped_ : depth_) : (depth_ < MaxDepth ? depth_ : dropped_);
    const bool keeps = &count == &depth_;
    count = std::max(0, count + (closes ? -1 : 1));
    return keeps;
  }

  // The toolkit takes tags in a sheet for tags.
  void TakeSheet() {
    const qsizetype end = html_.indexOf(u'<', at_);
    const qsizetype length = (end < 0 ? html_.size() : end) - at_;
    made_ += WithPlainColors(html_.mid(at_, length));
    at_ += length;
  }

  static void MakeStylesPlain(Tag& tag) {
    QString css;
    for (Attribute& attribute : tag.attributes)
      if (attribute.key == u"style") css = attribute.value = WithPlainColors(attribute.value);
    if (tag.name == u"img") AddSizes(tag, css);
  }

  const QStringView html_;
  TableCells cells_;
  QString made_;
  qsizetype at_ = 0;
  int depth_ = 0;    // of open elements
  int dropped_ = 0;  // those within that were left out
};

}  // namespace

QString WithPlainWords(const QString& html) {
  return Rewriting(html).Rewrite();
}

}  // namespace richtext::html
