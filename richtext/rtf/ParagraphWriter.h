// Writes paragraph formats, and the labels of lists for readers that know no lists.
#pragma once

#include <cstdint>
#include <optional>

#include "richtext/document/Document.h"
#include "richtext/document/ItemCounter.h"
#include "richtext/rtf/Output.h"

namespace richtext::rtf {

class ParagraphWriter {
 public:
  // `symbolFont` is the \f number of a symbol font, for bullets.
  ParagraphWriter(Output& out, std::int32_t symbolFont) : out_(out), symbolFont_(symbolFont) {}

  // What the document's tables have of a paragraph; 0: nothing.
  struct InTables {
    std::int32_t list = 0;
    std::int32_t ground = 0;  // a color
  };
  // The next paragraph is of this format.
  void Begin(const ParagraphFormat& format, const InTables& inTables);

 private:
  void WriteFormat(const ParagraphFormat& format, const InTables& inTables);
  void WriteSpacing(const ParagraphFormat& format);
  void WriteTabs(const ParagraphFormat& format);
  void WriteList(const ListFormat& list);
  void WriteLabel(const ListFormat& list, std::int32_t number);
  bool WriteSymbol(const ListFormat& list);

  Output& out_;
  std::int32_t symbolFont_;
  std::optional<ParagraphFormat> format_;  // in force
  ListFormat list_;                        // likewise, as written
  ItemCounter items_;
};

}  // namespace richtext::rtf
