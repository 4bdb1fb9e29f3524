// Every input is a document, and a sound one, of no more text than the input has bytes.

#include "fuzz/SoundDocument.h"
#include "richtext/rtf/Reader.h"

void Try(std::string_view input) {
  const richtext::Document document = richtext::ReadRtf(input);
  RequireSound(document);
  std::size_t bytes = 0;
  for (const richtext::Picture& picture : document.pictures) bytes += picture.bytes.size();
  Require(document.text.size() <= input.size(), "text comes from bytes");
  Require(document.paragraphs.size() <= input.size() + 1, "paragraphs come from bytes");
  Require(bytes <= input.size(), "pictures come from bytes");
}
