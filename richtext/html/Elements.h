// Elements that the toolkit does not know, in the words of those that it knows.
#pragma once

#include <vector>

#include <QtCore/QString>

#include "richtext/html/Tag.h"

namespace richtext::html {

// Elements that stand in lines of their own do so: the toolkit would run their words into one.
void MakeElementPlain(Tag& tag);

// The letters that a browser shows in the place of the tag: the marks of a quotation, the box of a check
// list.
QString LettersFor(const Tag& tag);

// Whether a browser shows nothing of the element, whatever stands in it.
bool IsUnseen(const Tag& tag);

// Behind a <div> the toolkit would go on in its line, a picture behind any block; and it knows no lines that
// styles alone begin. Is told of all that follows each other, and gives what is to stand before it.
class EndedLines {
 public:
  QString Before(const Tag& tag);
  QString Before(QStringView text);

 private:
  struct Open {
    QString name;
    bool beginsLine;
  };
  QString Ended(QStringView wanted);
  void TakeInline(const Tag& tag);

  std::vector<Open> open_;      // elements within lines, but the deepest
  bool isEnded_ = false;        // a <div>
  bool isBroken_ = false;       // a line, by a style
  bool isBehindBlock_ = false;  // with nothing since
  bool hasText_ = false;        // since a block began or ended
};

}  // namespace richtext::html
