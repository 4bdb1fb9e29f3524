#include "richtext/HtmlMarkup.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include <QtCore/QRegularExpression>

#include "richtext/HtmlColors.h"
#include "richtext/HtmlTables.h"

namespace richtext {
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

// " width=80" for a style of "width: 80px" and " width=0", which is its own, for every other one.
QString SizeAttributes(const QString& css) {
  static const QRegularExpression size(
      QStringLiteral("(?:^|;)\\s*(width|height)\\s*:\\s*(?:(\\d{1,5})(?:\\.\\d*)?px)?"),
      QRegularExpression::CaseInsensitiveOption);
  QString attributes;
  for (auto found = size.globalMatch(css); found.hasNext();) {
    const QRegularExpressionMatch side = found.next();
    attributes += u' ' + side.captured(1) + QStringLiteral("=\"%1\"").arg(side.captured(2).toInt());
  }
  return attributes;
}

class Rewriting {
 public:
  explicit Rewriting(const QString& html) : html_(html), cells_(FewCells + html.size() / LettersOfCell) {
    made_.reserve(html.size());
  }

  QString Rewrite() {
    for (qsizetype tag = html_.indexOf(u'<'); tag >= 0; tag = html_.indexOf(u'<', at_)) {
      CopyTo(tag);
      TakeTag();
    }
    CopyTo(html_.size());
    return std::move(made_);
  }

 private:
  void CopyTo(qsizetype end) {
    made_ += html_.mid(at_, end - at_);
    at_ = end;
  }

  void TakeTag() {
    const bool closes = html_.mid(at_ + 1).startsWith(u'/');
    const QString name = NameAt(at_ + (closes ? 2 : 1));
    if (html_.mid(at_).startsWith(u"<!--")) return CopyTo(EndOf(u"-->"));
    if (name.isEmpty()) return TakeBracket();
    const QStringView tag = html_.mid(at_, EndOfTag() - at_);
    at_ += tag.size();
    if (IsDisguised(tag, name) || (!tag.endsWith(u"/>") && !Keeps(name, closes))) return;
    if (!cells_.Take(name, closes, tag.toString())) return FlattenCell(name);
    made_ += closes ? tag.toString() : WithPlainStyle(tag.toString(), name);
    if (!closes && name == u"style") TakeSheet();
  }

  // No name follows, but the toolkit would look for one behind blanks and in quotes.
  void TakeBracket() {
    const QStringView next = html_.mid(at_ + 1, 1);
    if (next == u"/" || next == u"!" || next == u"?") return CopyTo(at_ + 1);
    made_ += QStringLiteral("&lt;");
    ++at_;
  }

  // The toolkit reads entities in the name of an element.
  static bool IsDisguised(QStringView tag, QStringView name) {
    return tag.left(name.size() + (tag.startsWith(u"</") ? 3 : 2)).contains(u'&');
  }

  void FlattenCell(QStringView name) {
    made_ += name == u"tr" ? QStringLiteral("<br>") : QStringLiteral(" ");
  }

  QString NameAt(qsizetype from) const {
    qsizetype end = from;
    while (end < html_.size() && html_[end].isLetterOrNumber()) ++end;
    return html_.mid(from, end - from).toString().toLower();
  }

  // Behind the next place of `mark`, or at the end of all.
  qsizetype EndOf(QStringView mark) const {
    const qsizetype found = html_.indexOf(mark, at_, Qt::CaseInsensitive);
    return found < 0 ? html_.size() : found + mark.size();
  }

  // A bracket between quotes is no end, unless the last quote is missing.
  qsizetype EndOfTag() const {
    char16_t quote = 0;
    for (qsizetype at = at_; at < html_.size(); ++at) {
      const char16_t unit = html_[at].unicode();
      if (quote == 0 && unit == u'>') return at + 1;
      if (quote == unit)
        quote = 0;
      else if (quote == 0 && (unit == u'"' || unit == u'\''))
        quote = unit;
    }
    return EndOf(u">");
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

  static QString WithPlainStyle(QString tag, const QString& name) {
    static const QRegularExpression style(
        QStringLiteral("\\sstyle\\s*=\\s*(?:\"([^\"]*)\"|'([^']*)'|([^\\s\"'>]+))"),
        QRegularExpression::CaseInsensitiveOption);
    if (name == u"td" || name == u"th")
      tag.replace(u"&#"_qs, u"#"_qs);  // it reads a span's digits from these
    const QRegularExpressionMatch found = style.match(tag);
    if (!found.hasMatch()) return tag;
    const int group = found.lastCapturedIndex();
    const QString css = WithPlainColors(found.capturedView(group));
    tag.replace(found.capturedStart(group), found.capturedLength(group), css);
    if (name == u"img") tag.insert(tag.size() - (tag.endsWith(u"/>") ? 2 : 1), SizeAttributes(css));
    return tag;
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

}  // namespace richtext
