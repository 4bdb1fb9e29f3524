// A selection of the text box on paper: one continuous text with all its formats, whose lines go on from
// sheet to sheet. Nothing else stands on the paper, no page number and no colour of the page.
#pragma once

class QTextCursor;

namespace richtext {

class Paper;

// Prints what is selected; of a paragraph that is selected in part, that part. A line that does not fit on a
// sheet begins the next one. False when the paper has failed, which then holds what came before. Takes time
// and no more memory by the length of the text.
bool PrintSelection(const QTextCursor& selection, Paper& paper);

}  // namespace richtext
