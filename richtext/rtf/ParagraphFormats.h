// The formats of paragraphs, made of their states and of what these refer to by number: tab stops, borders
// and lists.
#pragma once

#include <string>

#include "richtext/document/Document.h"
#include "richtext/rtf/BorderSets.h"
#include "richtext/rtf/GroupState.h"
#include "richtext/rtf/ListCounter.h"
#include "richtext/rtf/ListTable.h"
#include "richtext/rtf/Numberings.h"
#include "richtext/rtf/TabSets.h"

namespace richtext::rtf {

class ParagraphFormats {
 public:
  TabSets& Tabs() { return tabs_; }
  BorderSets& Borders() { return borders_; }
  ListTable& Lists() { return lists_; }
  Numberings& OwnLists() { return numberings_; }  // which paragraphs tell themselves

  bool IsListed(const ParagraphState& state) const;
  // The format of the next paragraph of the document, which is counted if it is an item of the list table's.
  // Each paragraph is told once and in order, by FormatOfNext or by PassUnlisted.
  ParagraphFormat FormatOfNext(const ParagraphState& state);
  // The next paragraph is of no list.
  void PassUnlisted() { counter_.Interrupt(); }

 private:
  bool IsOfTable(const ParagraphState& state) const;
  std::u16string WithOuterNumbers(const std::u16string& text, const ParagraphState& state) const;
  void SetList(const ParagraphState& state, ParagraphFormat& format) const;
  ParagraphFormat FormatOf(const ParagraphState& state);

  TabSets tabs_;
  BorderSets borders_;
  ListTable lists_;
  Numberings numberings_;
  ListCounter counter_;
};

}  // namespace richtext::rtf
