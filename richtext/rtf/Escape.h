// How words, numbers and characters are written in RTF.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace richtext::rtf {

// "\name" and its parameter. A letter, a digit or a blank of the text may not follow directly.
void AppendWord(std::string_view name, std::string& rtf);
void AppendWord(std::string_view name, std::int32_t parameter, std::string& rtf);

// A character as "\uN ?", which is right for each.
void AppendUnicode(char16_t unit, std::string& rtf);
// A byte as \'hh.
void AppendHexByte(char byte, std::string& rtf);
// A character of a font's name, which a semicolon would end.
void AppendNameUnit(char16_t unit, std::string& rtf);

// Lower-case hexadecimal in lines of 64 bytes.
void AppendHexLines(std::string_view bytes, std::string& rtf);

}  // namespace richtext::rtf
