#include "richtext/document/Document.h"

namespace richtext {

Document EmptyDocument() {
  Document document;
  document.paragraphs.push_back({});
  document.formats.push_back({});
  document.paragraphFormats.push_back({});
  return document;
}

}  // namespace richtext
