#include "richtext/textdocument/LayoutFormats.h"

namespace richtext {

bool SetLayoutFormats(const QTextBlock& block, int property, const LayoutFormats& formats) {
  QTextLayout& layout = *block.layout();
  LayoutFormats all = layout.formats();
  if (all.isEmpty() && formats.isEmpty()) return false;
  all.removeIf([&](const QTextLayout::FormatRange& range) { return range.format.hasProperty(property); });
  all = formats + all;
  if (all == layout.formats()) return false;
  layout.setFormats(all);
  return true;
}

}  // namespace richtext
