// Writes a document as RTF 1.5: 7-bit, \ansicpg1252 with \uc1, characters beyond as "\uN ?".
#pragma once

#include <string>

#include "richtext/document/Document.h"

namespace richtext {

// What is read again and written again is the same bytes. ReadRtf(WriteRtf(d)) == d for every document of the
// reader's making: formats and fonts numbered by first use (a run before its paragraph's end), none unused,
// no two neighbouring runs of one paragraph in one format, no link at a paragraph's end, tab stops by
// position and lists as FittingList() makes them. Another document comes back with the same text and formats
// in that order. A unit that no document holds (a control character, half a surrogate pair, a picture's mark
// without a picture) is written as U+FFFD; measures beyond Limits.h are brought within. Never empty. Lists
// are written with \pn and the labels that readers without lists show, and for newer readers as lists of the
// list table; links as fields; what is marked, raised or lowered in a group of its own.
std::string WriteRtf(const Document& document);

}  // namespace richtext
