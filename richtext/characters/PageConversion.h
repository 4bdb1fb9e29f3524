// The code pages of the C library. Tables of 20000 characters are not worth carrying for the few documents
// that need them; where the library lacks a page, its characters show as U+FFFD.
#pragma once

#include <cstdint>
#include <iconv.h>
#include <string_view>

namespace richtext {

class PageConversion {
 public:
  explicit PageConversion(std::int32_t page);
  ~PageConversion();
  PageConversion(const PageConversion&) = delete;
  PageConversion& operator=(const PageConversion&) = delete;

  bool IsKnown() const;
  // The one unit that the bytes of one character stand for; U+FFFD when they stand for none or for more.
  char16_t UnitOf(std::string_view bytes) const;

 private:
  iconv_t conversion_;
};

}  // namespace richtext
