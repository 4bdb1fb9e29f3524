// Texts as they go into a web page: in Windows-1252, and each character that it lacks as a decimal numeric
// character reference, so that any script reads right in a browser. Nothing else is escaped.
#pragma once

#include <string>
#include <string_view>

std::string WebText(
    std::u16string_view text);  // UTF-16; half a pair becomes the sign for what is no character
std::string WebFileName(std::string_view name);  // the system's own bytes of a name or path
std::string WebLongDate(double date);            // the date in the user's own long form
