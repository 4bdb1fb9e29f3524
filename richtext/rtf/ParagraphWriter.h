// Writes paragraph formats, and the labels of lists for readers that know no lists.
#pragma once

#include <cstdint>
#include <optional>

#include "richtext/document/Document.h"
#include "richtext/document/ItemCounter.h"
#include "richtext/rtf/Output.h"
#include "richtext/rtf/Tables.h"

namespace richtext::rtf {

class ParagraphWriter {
 public:
  // Both must outlive it.
  ParagraphWriter(Output& out, const Tables& tables) : out_(out), tables_(tables) {}

  // What is told of a paragraph besides its format.
  struct Around {
    std::int32_t list = 0;  // of the list table; 0: none
    bool isInRow = false;
  };
  // The next paragraph is of this format.
  void Begin(const ParagraphFormat& format, const Around& around);

 private:
  void WriteFormat(const ParagraphFormat& format, const Around& around);
  void WriteSidesFromRight(const ParagraphFormat& format);
  void WriteSpacing(const ParagraphFormat& format);
  void WriteTabs(const ParagraphFormat& format);
  void WriteBorders(const ParagraphBorders& borders);
  void WriteList(const ListFormat& list);
  void WriteLabel(const ListFormat& list, std::int32_t number);
  bool WriteSymbol(const ListFormat& list);

  Output& out_;
  const Tables& tables_;
  std::optional<ParagraphFormat> format_;  // in force
  ListFormat list_;                        // likewise, as written
  bool isInRow_ = false;                   // likewise
  ItemCounter items_;
  std::size_t longLabels_ = 0;  // letters of those that are longer than a person's
};

}  // namespace richtext::rtf
