// The markup is gone through once, from bracket to bracket. Text between tags is copied as it is. Whatever
// begins with a bracket becomes one of four things: a tag is read by the rules of those who write markup
// (Tag.h), goes by the nesting and the cells, each of which can refuse it, and is written anew so that the
// toolkit reads the same (Written); a sheet behind a <style> is text of its own kind (Styles.h); a comment
// is left out; and a bracket that begins nothing becomes a letter. What is made so holds nothing of
// which the toolkit has an own view.
#include "richtext/html/Markup.h"

#include <algorithm>

#include "richtext/html/Elements.h"
#include "richtext/html/Frames.h"
#include "richtext/html/Styles.h"
#include "richtext/html/Tables.h"
#include "richtext/html/Tag.h"
#include "richtext/html/ToldColumns.h"

namespace richtext::html {
namespace {

constexpr int MaxDepth = 200;
constexpr qsizetype FewCells = 10'000;
constexpr qsizetype LettersOfCell = 2;  // what each cell beyond these must take of the markup

// Elements that end by themselves where the next one begins.
constexpr QStringView FlatElements[] = {u"br",    u"dd", u"dt",    u"hr", u"img",   u"li", u"p",
                                        u"tbody", u"td", u"tfoot", u"th", u"thead", u"tr"};

// How many elements are open at once. Tags beyond MaxDepth are left out in pairs: an end goes with the start
// that was left out last.
class Nesting {
 public:
  // Counts the next tag; whether it is kept.
  bool Keeps(const Tag& tag) {
    return IsOneOf(FlatElements, tag.name) || tag.endsItself || (tag.closes ? End() : Start());
  }

 private:
  bool Start() {
    const bool keeps = depth_ < MaxDepth;
    ++(keeps ? depth_ : dropped_);
    return keeps;
  }
  bool End() {
    const bool keeps = dropped_ == 0;
    int& count = keeps ? depth_ : dropped_;
    count = std::max(0, count - 1);
    return keeps;
  }

  int depth_ = 0;    // of open elements that were kept
  int dropped_ = 0;  // within them, open ones that were left out
};

class Rewriting {
 public:
  explicit Rewriting(const QString& html) : html_(html), cells_(FewCells + html.size() / LettersOfCell) {
    made_.reserve(html.size());
  }

  PlainMarkup Rewrite() {
    for (qsizetype tag = html_.indexOf(u'<'); tag >= 0; tag = html_.indexOf(u'<', at_)) {
      CopyTo(tag);
      TakeNext();
    }
    CopyTo(html_.size());
    return {std::move(made_), frames_.All()};
  }

 private:
  void CopyTo(qsizetype end) {
    Copy(html_.mid(at_, end - at_));
    at_ = end;
  }

  void Copy(QStringView text) {
    made_ += lines_.Before(text);
    made_ += text;
  }

  void TakeNext() {
    const QStringView next = html_.mid(at_ + 1, 1);
    if (next == u"!" || next == u"?") return LeaveOut();
    if (!IsTagAt(html_, at_)) return TakeBracket();
    Tag tag = TakeTag(html_, at_);
    if (IsUnseen(tag) && SkipTo(tag.name)) return;
    Copy(LettersFor(tag));
    MakeElementPlain(tag);
    made_ += lines_.Before(tag);
    if (tag.name.isEmpty() || !nesting_.Keeps(tag)) return;
    if (!cells_.Take(tag)) return FlattenCell(tag.name);
    MakeStylesPlain(tag);
    columns_.Take(tag);
    frames_.Take(tag);
    made_ += Written(tag);
    if (!tag.closes && tag.name == u"style") TakeSheet();
  }

  // Whether there is an end of the element, behind which the markup goes on. What has none further on is not
  // looked for again.
  bool SkipTo(const QString& name) {
    if (endless_.contains(name)) return false;
    const qsizetype end = html_.indexOf(QStringLiteral("</") + name, at_, Qt::CaseInsensitive);
    if (end < 0) {
      endless_.append(name);
      return false;
    }
    const qsizetype behind = html_.indexOf(u'>', end) + 1;
    at_ = behind > 0 ? behind : html_.size();
    return true;
  }

  // Comments, declarations and instructions, which end elsewhere for the toolkit.
  void LeaveOut() {
    const QStringView mark = html_.mid(at_).startsWith(u"<!--") ? u"-->" : u">";
    const qsizetype end = html_.indexOf(mark, at_ + 2);
    at_ = end < 0 ? html_.size() : end + mark.size();
  }

  // The toolkit would look for a name behind blanks and in quotes.
  void TakeBracket() {
    made_ += QStringLiteral("&lt;");
    ++at_;
  }

  void FlattenCell(QStringView name) {
    made_ += name == u"tr" ? QStringLiteral("<br>") : QStringLiteral(" ");
  }

  // The toolkit takes tags in a sheet for tags.
  void TakeSheet() {
    const qsizetype end = html_.indexOf(u'<', at_);
    const qsizetype length = (end < 0 ? html_.size() : end) - at_;
    made_ += WithPlainValues(html_.mid(at_, length));
    at_ += length;
  }

  const QStringView html_;
  Nesting nesting_;
  TableCells cells_;
  ToldColumns columns_;
  FrameMarks frames_;
  EndedLines lines_;
  QStringList endless_;  // names
  QString made_;
  qsizetype at_ = 0;  // how far the markup is taken
};

}  // namespace

PlainMarkup WithPlainWords(const QString& html) {
  return Rewriting(html).Rewrite();
}

}  // namespace richtext::html
