#include "richtext/html/Elements.h"

#include <algorithm>
#include <iterator>
#include <utility>

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

template <std::size_t Count>
bool IsOneOf(const QStringView (&names)[Count], const QString& name) {
  return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

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

}  // namespace

void MakeElementPlain(Tag& tag) {
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

QString EndedLines::Ended() {
  return std::exchange(isEnded_, false) ? QStringLiteral("<div></div>") : QString();
}

QString EndedLines::Before(QStringView text) {
  return text.trimmed().isEmpty() ? QString() : Ended();
}

QString EndedLines::Before(const Tag& tag) {
  if (tag.name == u"br" || tag.name == u"img") return Ended();
  const bool beginsLine = IsOneOf(Lines, tag.name);
  if (beginsLine) isEnded_ = tag.closes && (isEnded_ || tag.name == u"div");
  return {};
}

}  // namespace richtext::html
