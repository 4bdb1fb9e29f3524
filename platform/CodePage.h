// Windows-1252, the character set of formats, names and passwords, to and from the toolkit's strings.
//
// The five bytes without a character (81, 8D, 8F, 90, 9D hex) stand for the control characters of the same
// number, so that every byte comes back as itself.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <QtCore/QString>

namespace platform {

// The byte of a character; -1 when the code page has none.
int CodePageByte(char16_t character);

QString FromCodePage(std::string_view bytes);
// Nothing when a character is not in the code page: none is ever turned into a question mark.
std::optional<std::string> ToCodePage(const QString& text);
// The first character that the code page lacks, as a string (a surrogate pair whole); empty when it holds
// all.
QString FirstForeignCharacter(const QString& text);

}  // namespace platform
