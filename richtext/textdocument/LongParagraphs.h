// Paragraphs of many thousands of letters, as an e-mail or a web page that has line breaks alone becomes one.
//
// The toolkit lays a paragraph out whole at each key, and finds its letters' pieces, scripts and borders anew
// each time that a line of it is painted or the caret's place is asked for. It lets one spare two things.
// What it has found can be kept until the next change, for some 30 bytes a letter. And the shaping of letters
// by the rules of their font, which is half of a layout, can be left out where a script does without; then
// letters stand a little wider or narrower, and none joins another one. Both is a matter of the layout alone.
#pragma once

class QTextDocument;

namespace richtext {

// To be told of each QTextDocument::contentsChange, of which the layout hears afterwards.
void SpareLongParagraphs(const QTextDocument& document, int at, int added);

}  // namespace richtext
