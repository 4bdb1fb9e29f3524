// The numbers of imported HTML's lists. Those of a page count neighbours only: an item that goes on counting
// behind other text begins a list there, with its own number.
#pragma once

#include <array>
#include <unordered_map>

#include <QtGui/QTextBlock>

#include "richtext/document/Document.h"
#include "richtext/document/Limits.h"

class QTextList;

namespace richtext::html {

// The markup with the first number of each list told in a way that the toolkit keeps.
QString WithListStarts(QString html);

class Lists {
 public:
  // Gives the block's list its start. The blocks come in the order of the document, those of no list too.
  void Number(const QTextBlock& block, ListFormat& list);

 private:
  // The items met last of a level, as a page will count them.
  struct Items {
    ListFormat list;
    std::int32_t next = 0;
  };

  std::int32_t NextOf(const QTextList& list);
  static void SetStart(ListFormat& list, std::int32_t number, const Items& before);

  std::unordered_map<const QTextList*, std::int32_t> next_;
  std::array<Items, MaxListLevel + 1> open_;
};

}  // namespace richtext::html
