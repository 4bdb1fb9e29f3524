// What a page from elsewhere changes of its look before it comes in.
#pragma once

#include "richtext/document/Document.h"

class QTextCursor;
class QTextDocument;

namespace richtext {

// White and other light letters that stand on no ground of their own take the caret's colour: the page that
// they come from was dark, this one is paper.
void MakeLegible(Document& page, const CharacterFormat& caret);

// Pictures between two positions that are wider than there is room for are made as wide as that, in their
// shape. A part of a step of undo, which must be open.
void FitPictures(QTextDocument& document, int from, int to);

}  // namespace richtext
