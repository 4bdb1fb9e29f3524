// Every input is a document, and a sound one, of no more text than the input has bytes.
#include <cstdint>
#include <string_view>

#include "fuzz/SoundDocument.h"
#include "richtext/RtfReader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const richtext::Document document = richtext::ReadRtf(input);
  RequireSound(document);
  std::size_t bytes = 0;
  for (const richtext::Picture& picture : document.pictures) bytes += picture.bytes.size();
  Require(document.text.size() <= size, "text comes from bytes");
  Require(document.paragraphs.size() <= size + 1, "paragraphs come from bytes");
  Require(bytes <= size, "pictures come from bytes");
  return 0;
}
