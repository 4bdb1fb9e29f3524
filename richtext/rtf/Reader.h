// Reads RTF (Rich Text Format, versions 1.0 to 1.9.1). Every input is a document: what was read is kept, and
// nothing refuses, hangs or recurses.
//
// The way of a page's bytes to the screen is told by four headers: this one makes the value of them,
// document/Document.h is that value, textdocument/TextDocument.h makes the toolkit's text document of it, and
// box/RichTextBox.h shows that. The way back ends in Writer.h, which mirrors this one.
//
// Within the room the bytes pass four layers, none of which knows the next: tokens (Tokenizer.h), the groups
// with the formats in force (GroupState.h), the control words and what each does (ControlWords.h,
// Handlers.h), and the document that is being built (DocumentBuilder.h). The place where they meet is
// Context.h. The hard part is what is told late or twice: a list by its label, by the older numbering and by
// a table, a picture for old and for new readers, a paragraph's format at its end.
#pragma once

#include <string_view>

#include "richtext/document/Document.h"

namespace richtext {

// Whether the text begins with "{\rtf" or "{\urtf". The classic edit controls ask for no more, and pass over
// nothing before it.
bool IsRtf(std::string_view text);

// Text that is no RTF is taken as plain text in Windows-1252. The very last \par of the document is
// swallowed. Of a table within a cell each row is a paragraph, whose cells end in a tab. A footnote's text
// stands at its mark, small and in brackets; headers and comments are left out.
Document ReadRtf(std::string_view rtf);

}  // namespace richtext
