// Replacing a piece of a text by another.
#pragma once

#include <string>

// The text with every place of `search` replaced, found without regard to capitals in Windows-1252. After
// each replacement the search starts at the beginning again, so that a place counts also when a replacement
// made it. A text that is exactly `search`, at the start or on the way, becomes empty and not the
// replacement.
//
// Throws InvalidArgument where that would never end: a place was found, and `search` is empty or the
// replacement holds it.
std::string ReplaceText(std::string text, const std::string& search, const std::string& replacement);
