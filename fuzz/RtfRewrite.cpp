// What is written is read as the same document, is written the same again, and stays near the input in size.
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/Require.h"
#include "richtext/RtfReader.h"
#include "richtext/RtfWriter.h"

namespace {

// One byte of input, a closing brace, can bring back a paragraph's tab stops and a text's every attribute.
constexpr std::size_t MostBytesForOne = 64;
constexpr std::size_t HeaderAndTables = 4096;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const richtext::Document document = richtext::ReadRtf(input);
  const std::string written = richtext::WriteRtf(document);
  const richtext::Document again = richtext::ReadRtf(written);
  Require(again == document, "what is written is read as the same document");
  Require(richtext::WriteRtf(again) == written, "it is written once more in the same bytes");
  Require(written.size() <= HeaderAndTables + MostBytesForOne * size, "it does not grow");
  return 0;
}
