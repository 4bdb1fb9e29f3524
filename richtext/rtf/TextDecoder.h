// Turns the text of an RTF document into UTF-16: bytes by a code page, and the UTF-16 units of \u.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "richtext/characters/CodePages.h"

namespace richtext::rtf {

// Remembers what a character began with (a lead byte, a high surrogate) until its other half comes. A half
// that stays alone is dropped (a byte) or becomes U+FFFD (a surrogate).
class TextDecoder {
 public:
  void AppendBytes(std::string_view bytes, const CodePage& page, std::u16string& out);
  // The number of a \u: a signed or unsigned 16-bit unit, or beyond these a whole code point.
  void AppendUnicode(std::int32_t number, std::u16string& out);
  // Any other character.
  void AppendUnit(char16_t unit, std::u16string& out);

  // A group or the font changed.
  void DropLeadByte() { leadByte_ = 0; }
  // The text ends here.
  void EndText(std::u16string& out);

 private:
  char16_t* PutRareByte(unsigned char byte, const CodePage& page, char16_t* to);
  char16_t* PutUtf8Byte(unsigned char byte, const CodePage& page, char16_t* to);

  unsigned char leadByte_ = 0;
  int tailsLeft_ = 0;  // of a character in UTF-8 that leadByte_ began
  char32_t code_ = 0;  // its bits so far
  char16_t highSurrogate_ = 0;
};

// Whether the number of a \u is a line end of plain text, which is a paragraph's end in a document.
bool IsUnicodeParagraphEnd(std::int32_t number);

}  // namespace richtext::rtf
