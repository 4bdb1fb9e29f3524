#include "richtext/rtf/TextDecoder.h"

#include <cstddef>
#include <utility>

#include "richtext/characters/Unicode.h"

namespace richtext::rtf {
namespace {

// As in a code page: of the control characters only the blanks mean something; a picture's mark would stand
// for a picture that is not there. No text holds the end of a paragraph: one that comes in it is a line
// break.
char16_t TextUnit(char16_t unit) {
  if (unit < 0x20) return WesternCodePage().units[unit];
  if (unit == ParagraphSeparator) return LineBreak;
  return unit == PictureMark || IsNoncharacter(unit) ? Replacement : unit;
}

}  // namespace

void TextDecoder::AppendBytes(std::string_view bytes, const CodePage& page, std::u16string& out) {
  if (highSurrogate_ != 0) EndText(out);
  const std::size_t start = out.size();
  out.resize(start + bytes.size() + 1);  // a unit for each byte, and for a lead byte from before
  char16_t* to = out.data() + start;
  for (const char byte : bytes) {
    const char16_t unit = page.units[static_cast<unsigned char>(byte)];
    if (unit < CodePage::LeadByte && leadByte_ == 0) [[likely]] {
      *to++ = unit;
    } else {
      to = PutRareByte(static_cast<unsigned char>(byte), page, to);
    }
  }
  out.resize(static_cast<std::size_t>(to - out.data()));
}

// A byte that is no character by itself. One that cannot be a second half stands for itself, so that a lead
// byte in the wrong place takes no text with it.
char16_t* TextDecoder::PutRareByte(unsigned char byte, const CodePage& page, char16_t* to) {
  if (page.number == Utf8Page) return PutUtf8Byte(byte, page, to);
  const unsigned char lead = std::exchange(leadByte_, 0);
  if (lead != 0) *to++ = DoubleByteUnit(page, lead, byte);
  if (lead != 0 && IsTrailByte(byte)) return to;
  const char16_t unit = page.units[byte];
  if (unit == CodePage::LeadByte) {
    leadByte_ = byte;
  } else if (unit != CodePage::Nothing) {
    *to++ = unit;
  }
  return to;
}

char16_t* TextDecoder::PutUtf8Byte(unsigned char byte, const CodePage& page, char16_t* to) {
  const bool isTail = (byte & 0xC0) == 0x80;
  if (leadByte_ != 0 && isTail) {
    code_ = (code_ << 6) | (byte & 0x3FU);
    if (--tailsLeft_ > 0) return to;
    leadByte_ = 0;
    std::u16string character;
    AppendCodePoint(code_, character);
    for (const char16_t unit : character) *to++ = TextUnit(unit);
    return to;
  }
  if (std::exchange(leadByte_, 0) != 0) *to++ = Replacement;
  const char16_t unit = page.units[byte];
  if (unit != CodePage::LeadByte) {
    if (unit != CodePage::Nothing) *to++ = unit;
    return to;
  }
  leadByte_ = byte;
  tailsLeft_ = byte < 0xE0 ? 1 : byte < 0xF0 ? 2 : 3;
  code_ = byte & (0x3FU >> tailsLeft_);
  return to;
}

void TextDecoder::AppendUnicode(std::int32_t number, std::u16string& out) {
  if (number < 0 && number >= -0x8000) number += 0x10000;
  if (number < 0 || number > 0xFFFF) {
    EndText(out);
    AppendCodePoint(number < 0 ? char32_t{Replacement} : static_cast<char32_t>(number), out);
  } else {
    AppendUnit(static_cast<char16_t>(number), out);
  }
}

void TextDecoder::AppendUnit(char16_t unit, std::u16string& out) {
  leadByte_ = 0;
  if (IsLowSurrogate(unit) && highSurrogate_ != 0) {
    out += {highSurrogate_, unit};
    highSurrogate_ = 0;
    return;
  }
  EndText(out);
  if (IsHighSurrogate(unit)) {
    highSurrogate_ = unit;
  } else if (const char16_t clean = IsLowSurrogate(unit) ? Replacement : TextUnit(unit);
             clean != CodePage::Nothing) {
    out += clean;
  }
}

void TextDecoder::EndText(std::u16string& out) {
  if (highSurrogate_ != 0) out += Replacement;
  highSurrogate_ = 0;
  leadByte_ = 0;
}

bool IsUnicodeParagraphEnd(std::int32_t number) {
  return number == '\n' || number == '\r' || number == ParagraphSeparator;
}

}  // namespace richtext::rtf
