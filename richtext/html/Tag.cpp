#include "richtext/html/Tag.h"

#include <algorithm>

namespace richtext::html {
namespace {

bool IsLetter(QChar letter) {
  return (letter >= u'a' && letter <= u'z') || (letter >= u'A' && letter <= u'Z');
}

bool IsWordOf(QStringView word, QStringView marks) {
  return std::all_of(word.begin(), word.end(), [&](QChar unit) {
    return IsLetter(unit) || (unit >= u'0' && unit <= u'9') || marks.contains(unit);
  });
}

class TagReader {
 public:
  TagReader(QStringView html, qsizetype& at) : html_(html), at_(at) {}

  Tag Read() {
    Tag tag;
    ++at_;
    tag.closes = Take(u"/");
    const QStringView name = Word(u"/");
    if (IsWordOf(name, u"-:_.")) tag.name = name.toString().toLower();
    for (SkipBlanks(); at_ < html_.size() && !Take(u">"); SkipBlanks()) TakePart(tag);
    return tag;
  }

 private:
  bool Is(QStringView mark) const { return html_.mid(at_, mark.size()) == mark; }

  bool Take(QStringView mark) {
    const bool takes = Is(mark);
    if (takes) at_ += mark.size();
    return takes;
  }

  void SkipBlanks() {
    while (at_ < html_.size() && html_[at_].isSpace()) ++at_;
  }

  // A bracket and a blank end every word.
  QStringView Word(QStringView ends) {
    const qsizetype from = at_;
    while (at_ < html_.size() && !html_[at_].isSpace() && !ends.contains(html_[at_]) && !Is(u">") &&
           !Is(u"/>"))
      ++at_;
    return html_.mid(from, at_ - from);
  }

  void TakePart(Tag& tag) {
    if (Take(u"/")) {
      tag.endsItself = !tag.closes && Is(u">");
      return;
    }
    const QStringView key = Word(u"=/");
    SkipBlanks();
    const QStringView value = Take(u"=") ? Value() : QStringView(u"1");  // as the toolkit has it
    if (!key.isEmpty() && IsWordOf(key, u"-"))
      tag.attributes.push_back({key.toString().toLower(), value.toString()});
  }

  // A quote that has no other one is a letter.
  QStringView Value() {
    SkipBlanks();
    const bool isQuoted = Is(u"\"") || Is(u"'");
    const qsizetype end = isQuoted ? html_.indexOf(html_[at_], at_ + 1) : -1;
    if (end < 0) return Word({});
    const QStringView value = html_.mid(at_ + 1, end - at_ - 1);
    at_ = end + 1;
    return value;
  }

  const QStringView html_;
  qsizetype& at_;
};

}  // namespace

bool IsTagAt(QStringView html, qsizetype at) {
  const qsizetype name = at + (html.mid(at + 1).startsWith(u'/') ? 2 : 1);
  return name < html.size() && IsLetter(html[name]);
}

Tag TakeTag(QStringView html, qsizetype& at) {
  return TagReader(html, at).Read();
}

// Between double quotes nothing else than these and entities means anything to the toolkit.
QString Written(const Tag& tag) {
  if (tag.closes) return QStringLiteral("</") + tag.name + u'>';
  QString written = u'<' + tag.name;
  for (const auto& [key, value] : tag.attributes)
    written +=
        u' ' + key + QStringLiteral("=\"") + QString(value).replace(u'"', QStringLiteral("&quot;")) + u'"';
  return written + (tag.endsItself ? QStringLiteral("/>") : QStringLiteral(">"));
}

}  // namespace richtext::html
