// Elements that the toolkit does not know, in the words of those that it knows.
#pragma once

#include <QtCore/QString>

#include "richtext/html/Tag.h"

namespace richtext::html {

// Elements that stand in lines of their own do so: the toolkit would run their words into one.
void MakeElementPlain(Tag& tag);

// The letters that a browser shows in the place of the tag: the marks of a quotation, the box of a check
// list.
QString LettersFor(const Tag& tag);

// Behind a <div> the toolkit would go on in its line. Is told of all that follows each other, and gives what
// is to stand before it.
class EndedLines {
 public:
  QString Before(const Tag& tag);
  QString Before(QStringView text);

 private:
  QString Ended();

  bool isEnded_ = false;
};

}  // namespace richtext::html
