#include "richtext/html/Elements.h"

#include <algorithm>
#include <utility>

#include <QtCore/QRegularExpression>

namespace richtext::html {
namespace {

constexpr QStringView Blocks[] = {u"address",  u"article", u"aside",  u"details",    u"dialog",
                                  u"fieldset", u"figure",  u"footer", u"figcaption", u"form",
                                  u"header",   u"hgroup",  u"legend", u"main",       u"nav",
                                  u"optgroup", u"option",  u"search", u"section",    u"summary"};

// The toolkit begins a line with each of these.
constexpr QStringView Lines[] = {u"blockquote", u"center", u"dd", u"div", u"dl", u"dt",      u"h1", u"h2",
                                 u"h3",         u"h4",     u"h5", u"h6",  u"hr", u"li",      u"ol", u"p",
                                 u"pre",        u"table",  u"td", u"th",  u"tr", u"caption", u"ul"};

// The toolkit looks for the end of these, and takes them for open until then.
constexpr QStringView Endless[] = {u"area", u"base",  u"col",    u"embed", u"input", u"link",
                                   u"meta", u"param", u"source", u"track", u"wbr"};
constexpr QStringView Unseen[] = {u"script", u"template", u"iframe", u"noembed", u"noframes"};
constexpr std::size_t MostOpen = 200;

bool Has(const Tag& tag, QStringView key, QStringView value) {
  return std::any_of(tag.attributes.begin(), tag.attributes.end(), [&](const Attribute& attribute) {
    return attribute.key == key &&
           (value.isEmpty() || attribute.value.compare(value, Qt::CaseInsensitive) == 0);
  });
}

// The toolkit reads the last style of a tag.
void AddStyle(Tag& tag, const QString& declaration) {
  const auto style = std::find_if(tag.attributes.rbegin(), tag.attributes.rend(),
                                  [](const Attribute& attribute) { return attribute.key == u"style"; });
  if (style != tag.attributes.rend())
    style->value += u';' + declaration;
  else
    tag.attributes.push_back({QStringLiteral("style"), declaration});
}

// What browsers copy of elements in lines of their own, whatever the element is.
bool BeginsLineByStyle(const Tag& tag) {
  static const QRegularExpression block(
      QStringLiteral("(?:^|;)\\s*display\\s*:\\s*(?:block|flex|grid|flow-root|list-item|table)\\s*(?:;|!|$)"),
      QRegularExpression::CaseInsensitiveOption);
  return std::any_of(tag.attributes.begin(), tag.attributes.end(), [](const Attribute& attribute) {
    return attribute.key == u"style" && attribute.value.contains(block);
  });
}

}  // namespace

bool IsUnseen(const Tag& tag) {
  return !tag.closes && !tag.endsItself && IsOneOf(Unseen, tag.name);
}

void MakeElementPlain(Tag& tag) {
  if (IsOneOf(Endless, tag.name)) tag.endsItself = true;
  if (tag.name == u"menu" || tag.name == u"dir") tag.name = QStringLiteral("ul");
  if (!IsOneOf(Blocks, tag.name)) return;
  if (tag.name == u"address" && !tag.closes) AddStyle(tag, QStringLiteral("font-style:italic"));
  tag.name = QStringLiteral("div");
}

QString LettersFor(const Tag& tag) {
  if (tag.name == u"q") return QString(QChar(tag.closes ? u'\u201d' : u'\u201c'));
  if (tag.name != u"input" || tag.closes) return {};
  const bool isBox = Has(tag, u"type", u"checkbox");
  if (!isBox && !Has(tag, u"type", u"radio")) return {};
  if (Has(tag, u"checked", {})) return QString(QChar(isBox ? u'\u2611' : u'\u25c9'));
  return QString(QChar(isBox ? u'\u2610' : u'\u25cb'));
}

// Nothing is given twice.
QString EndedLines::Ended(QStringView wanted) {
  hasText_ = true;
  isBehindBlock_ = false;
  return std::exchange(isEnded_, false)    ? QStringLiteral("<div></div>")
         : std::exchange(isBroken_, false) ? QStringLiteral("<br>")
                                           : wanted.toString();
}

QString EndedLines::Before(QStringView text) {
  return text.trimmed().isEmpty() ? QString() : Ended({});
}

void EndedLines::TakeInline(const Tag& tag) {
  if (tag.endsItself) return;
  if (!tag.closes) {
    const bool beginsLine = open_.size() < MostOpen && BeginsLineByStyle(tag);
    if (open_.size() < MostOpen) open_.push_back({tag.name, beginsLine});
    isBroken_ = isBroken_ || (beginsLine && hasText_);
    return;
  }
  const auto open =
      std::find_if(open_.rbegin(), open_.rend(), [&](const Open& one) { return one.name == tag.name; });
  if (open == open_.rend()) return;
  isBroken_ = isBroken_ || (open->beginsLine && hasText_);
  open_.erase(open.base() - 1, open_.end());
}

QString EndedLines::Before(const Tag& tag) {
  if (tag.name == u"br") return Ended({});
  if (tag.name == u"img") return Ended(isBehindBlock_ ? u"<div></div>" : u"");
  if (!IsOneOf(Lines, tag.name)) {
    TakeInline(tag);
    return {};
  }
  isEnded_ = tag.closes && (isEnded_ || tag.name == u"div");
  isBehindBlock_ = tag.closes;
  isBroken_ = hasText_ = false;
  return {};
}

}  // namespace richtext::html
