#include "richtext/document/Document.h"

#include "richtext/document/Limits.h"

namespace richtext {
namespace {

std::int32_t ShownSpace(bool isAutomatic, std::int32_t told, const ListFormat& list) {
  if (!isAutomatic) return told;
  return list.kind == ListKind::None ? AutoSpace : 0;
}

}  // namespace

std::int32_t ShownSpaceBefore(const ParagraphFormat& format) {
  return ShownSpace(format.autoBefore, format.spaceBefore, format.list);
}

std::int32_t ShownSpaceAfter(const ParagraphFormat& format) {
  return ShownSpace(format.autoAfter, format.spaceAfter, format.list);
}

Document EmptyDocument() {
  Document document;
  document.paragraphs.push_back({});
  document.formats.push_back({});
  document.paragraphFormats.push_back({});
  return document;
}

}  // namespace richtext
