// Examples of RTF, each told by what the reader makes of it.
#pragma once

#include <cstddef>
#include <gtest/gtest.h>
#include <string>

#include "richtext/RtfReader.h"
#include "richtext/RtfWriter.h"
#include "tests/richtext/RtfDump.h"

namespace richtext {

struct Example {
  const char* rtf;
  const char* dump;
};

// Read as told, and the same after it was written and read again, in the same bytes.
inline void ExpectReads(const std::string& rtf, const std::string& dump) {
  SCOPED_TRACE(rtf.substr(0, 200));
  const Document document = ReadRtf(rtf);
  EXPECT_EQ(Dump(document), dump);
  const std::string written = WriteRtf(document);
  EXPECT_EQ(ReadRtf(written), document) << written;
  EXPECT_EQ(WriteRtf(ReadRtf(written)), written);
}

template <std::size_t N>
void ExpectEach(const Example (&examples)[N]) {
  for (const Example& example : examples) ExpectReads(example.rtf, example.dump);
}

}  // namespace richtext
