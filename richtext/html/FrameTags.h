// The frames of a page's paragraphs as markup: an element around those that stand in one.
#pragma once

#include <QtCore/QString>

#include "richtext/document/Document.h"

namespace richtext::html {

class FrameTags {
 public:
  // Is told of each paragraph of the page in turn: what stands before it, and behind one that ends a cell or
  // the page. Text and cells are parted by an end.
  QString Begin(const ParagraphFormat& format);
  QString End();
  // The end before a paragraph that stands in another frame or in none; empty where it stands in this one.
  QString EndBefore(const ParagraphFormat& format);

 private:
  const ParagraphFormat* open_ = nullptr;
};

}  // namespace richtext::html
